// The host of the component while the template is written: no video host is running then.
#pragma once

#include "framework/ihost_v1.h"

namespace ov1
{

/// Has no window and no colour profile, schedules no renders and ignores every notification.
class fcpx_extractor_host : public ihost_v1
{
public:
    static constexpr uid ifc_id = make_uid("fcpx_extractor_host");

    bool query_interface(const std::string& name, iobject** out) override;
    host_kind get_type() const override;
    std::string get_vendor() const override;
    std::string get_name() const override;
    /// The product's own version.
    version get_version() const override;
    /// Always English.
    language_id get_language() const override;
    /// False; the handle is not written.
    [[nodiscard]] bool get_host_window(void** handle) override;
    /// Both numbers are 0.
    project_info get_project_info() const override;
    bool has_working_color_profile() const override;
    /// Both are false and leave the argument unchanged.
    [[nodiscard]] bool convert_to_working_color_profile(param_argb& color) override;
    [[nodiscard]] bool convert_to_monitor_color_profile(image& picture) override;
    bool schedule_render() override;
    void notify(event e) override;
    bool component_is_dirty() const override;
    bool has_legacy_parameters() const override;
};

} // namespace ov1

// The default host: fixed answers, two flags, and every event forwarded to the component.
#pragma once

#include "framework/ihost_v1.h"

#include <atomic>
#include <memory>

namespace ov1
{

class icomponent_v1;

/// Passed to icomponent_v1::initialize; the component owns it, and it refers to the component weakly. All operations
/// may be called on any thread. A derived host that overrides notify also calls chost_v1::notify, which updates the
/// flags and the component.
class chost_v1 : public ihost_v1
{
public:
    static constexpr uid ifc_id = make_uid("chost_v1");

    explicit chost_v1(std::weak_ptr<icomponent_v1> component);

    bool query_interface(const std::string& name, iobject** out) override;
    host_kind get_type() const override;
    std::string get_vendor() const override;
    std::string get_name() const override;
    version get_version() const override;
    language_id get_language() const override;
    [[nodiscard]] bool get_host_window(void** handle) override;
    project_info get_project_info() const override;
    bool has_working_color_profile() const override;
    [[nodiscard]] bool convert_to_working_color_profile(param_argb& color) override;
    [[nodiscard]] bool convert_to_monitor_color_profile(image& picture) override;
    bool schedule_render() override;
    void notify(event e) override;
    bool component_is_dirty() const override;
    bool has_legacy_parameters() const override;

protected:
    /// Null after the component is destroyed. Keep it for one call only.
    std::shared_ptr<icomponent_v1> get_component() const { return component.lock(); }

private:
    /// Updates dirty and legacy; called for every event before it is forwarded.
    void update_flags(event_kind kind);

    const std::weak_ptr<icomponent_v1> component;
    /// Set by changes, cleared by render_begins.
    std::atomic<bool> dirty = false;
    /// Set by unknown_parameter, cleared by initialized.
    std::atomic<bool> legacy = false;
};

} // namespace ov1

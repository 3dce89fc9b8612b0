// The default host: fixed answers, two flags, and every event passed on to the component.
#pragma once

#include "framework/ihost_v1.h"

#include <atomic>
#include <memory>

namespace ov1
{

class icomponent_v1;

/// Made before icomponent_v1::initialize is called with it; the component owns it, it looks back weakly. All
/// operations may be called from any thread. A host of another program derives from it and hands its events to
/// chost_v1::notify, so that flags and component see them.
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
    /// Null once the component is gone; hold it for one call only.
    std::shared_ptr<icomponent_v1> get_component() const { return component.lock(); }

private:
    void update_flags(event_kind kind);

    const std::weak_ptr<icomponent_v1> component;
    std::atomic<bool> dirty = false;
    std::atomic<bool> legacy = false;
};

} // namespace ov1

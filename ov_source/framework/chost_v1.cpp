#include "framework/chost_v1.h"

#include "framework/icomponent_v1.h"

#include <utility>

namespace ov1
{

chost_v1::chost_v1(std::weak_ptr<icomponent_v1> component)
    : component(std::move(component))
{
}

bool chost_v1::query_interface(const std::string& name, iobject** out) { return answer_query(ifc_id, this, name, out); }

host_kind chost_v1::get_type() const { return host_kind::standalone; }
std::string chost_v1::get_vendor() const { return "Orvane"; }
std::string chost_v1::get_name() const { return "OV Default Host V1"; }
version chost_v1::get_version() const { return product_version; }
language_id chost_v1::get_language() const { return language_id::english; }
bool chost_v1::get_host_window(void**) { return false; }
project_info chost_v1::get_project_info() const { return {}; }
bool chost_v1::has_working_color_profile() const { return false; }
bool chost_v1::convert_to_working_color_profile(param_argb&) { return false; }
bool chost_v1::convert_to_monitor_color_profile(image&) { return false; }

bool chost_v1::schedule_render()
{
    notify({event_kind::render_requested});
    return true;
}

void chost_v1::notify(event e)
{
    // The flags first: the component may ask for them while it is notified.
    update_flags(e.type);
    // An event may arrive after the component was destroyed.
    if (const auto listening = get_component())
        listening->notify(std::move(e));
}

void chost_v1::update_flags(event_kind kind)
{
    switch (kind)
    {
    case event_kind::initialized:
        legacy = false;
        break;
    case event_kind::edited:
    case event_kind::changed:
    case event_kind::render_requested:
        dirty = true;
        break;
    case event_kind::render_begins:
        dirty = false;
        break;
    case event_kind::unknown_parameter:
        legacy = true;
        break;
    default:
        break;
    }
}

bool chost_v1::component_is_dirty() const { return dirty; }
bool chost_v1::has_legacy_parameters() const { return legacy; }

} // namespace ov1

#include "host/fxplug/fcpx_host_interface.h"

#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "host/bridge/connected_host.h"
#include "host/bridge/parameter_map.h"
#include "host/fxplug/host_apis.h"

#include <utility>

namespace ov1
{

fcpx_host_interface::fcpx_host_interface(std::weak_ptr<icomponent_v1> component, id<PROAPIAccessing> manager)
    : chost_v1(std::move(component))
    , manager(manager)
{
}

host_kind fcpx_host_interface::get_type() const { return host_kind::video_host; }
std::string fcpx_host_interface::get_vendor() const { return "Apple"; }
std::string fcpx_host_interface::get_name() const { return get_connected_host().name; }
version fcpx_host_interface::get_version() const { return get_connected_host().version; }
bool fcpx_host_interface::get_host_window(void**) { return false; }

language_id fcpx_host_interface::get_language() const
{
    // The editor's texts exist in these two languages.
    NSString* const code = [[NSLocale currentLocale] objectForKey:NSLocaleLanguageCode];
    return [code isEqualToString:@"de"] ? language_id::german : language_id::english;
}

void fcpx_host_interface::notify(event e)
{
    // `changed` reports sets by the program alone (edit false): what the host itself set does not come back to it.
    if (e.type == event_kind::changed)
    {
        if (const int index = index_of(e.id); index >= 0)
            dirty_params.add(index);
    }
    else if (e.type == event_kind::enabled_changed)
        show_enabled_state(e.id);
    // Last, because this moves the event away.
    chost_v1::notify(std::move(e));
}

int fcpx_host_interface::pop_dirty_param() { return dirty_params.pop(); }
void fcpx_host_interface::add_dirty_param(int index) { dirty_params.add(index); }

void fcpx_host_interface::detach()
{
    // Waits for another thread that is fetching interfaces. Later calls find nil.
    const std::scoped_lock guard(manager_mutex);
    manager = nil;
}

int fcpx_host_interface::index_of(uid id) const
{
    const auto component = get_component();
    if (!component)
        return -1;
    // A linear search is enough: there are few parameters, and events come at the pace of the user.
    for (int index = 0; index < component->get_parameter_count(); ++index)
        if (const auto parameter = component->get_parameter(index); parameter && parameter->get_uid() == id)
            return index;
    return -1;
}

void fcpx_host_interface::show_enabled_state(uid changed)
{
    const int index = index_of(changed);
    const auto component = get_component();
    const auto parameter = component && index >= 0 ? component->get_parameter(index) : nullptr;
    id<FxParameterRetrievalAPI_v6> retrieval = nil;
    id<FxParameterSettingAPI_v6> setting = nil;
    {
        // Held only to fetch the interfaces: the host may call the effect back from within the calls below.
        const std::scoped_lock guard(manager_mutex);
        retrieval = retrieval_api(manager);
        setting = flag_setting_api(manager);
    }
    const auto host_id = static_cast<UInt32>(host_id_of(index));
    // Read first, since the host has private bits in the flags. A nil `retrieval` answers NO.
    FxParameterFlags flags = 0;
    if (!parameter || setting == nil || ![retrieval getParameterFlags:&flags fromParameter:host_id])
        return;
    [setting setParameterFlags:with_hidden(flags, !parameter->get_enabled()) toParameter:host_id];
}

} // namespace ov1

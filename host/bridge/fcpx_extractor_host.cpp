#include "host/bridge/fcpx_extractor_host.h"

namespace ov1
{

bool fcpx_extractor_host::query_interface(const std::string& name, iobject** out)
{
    return answer_query(ifc_id, this, name, out);
}

host_kind fcpx_extractor_host::get_type() const { return host_kind::standalone; }
std::string fcpx_extractor_host::get_vendor() const { return "Orvane"; }
std::string fcpx_extractor_host::get_name() const { return "Template extraction"; }
version fcpx_extractor_host::get_version() const { return product_version; }
// Fixed: the template must not depend on the language of the machine that writes it.
language_id fcpx_extractor_host::get_language() const { return language_id::english; }
bool fcpx_extractor_host::get_host_window(void**) { return false; }
// Empty, unlike the default host's 24 frames a second.
project_info fcpx_extractor_host::get_project_info() const { return {0, 0}; }
// Colours stay as they are: the template contains the parameters' own default values.
bool fcpx_extractor_host::has_working_color_profile() const { return false; }
bool fcpx_extractor_host::convert_to_working_color_profile(param_argb&) { return false; }
bool fcpx_extractor_host::convert_to_monitor_color_profile(image&) { return false; }
// Nothing is rendered, and nobody listens to events.
bool fcpx_extractor_host::schedule_render() { return false; }
void fcpx_extractor_host::notify(event) {}
bool fcpx_extractor_host::component_is_dirty() const { return false; }
bool fcpx_extractor_host::has_legacy_parameters() const { return false; }

} // namespace ov1

// The text of a preset: every value in readable form, the state as bytes, and the colour table. Tabs and line feeds as
// shown, points shortened:
//
//   {
//   	"plugin_name":"Veridial",
//   	"plugin_version":"3.7.0",
//   	"parameter_count":2,
//   	"parameters":[
//   	{
//   		"param_name":"Global Bypass",
//   		"param_id":3586530166,
//   		"param_type":"boolean",
//   		"param_value":false
//   	},
//   	{
//   		"param_name":"Master Hue",
//   		"param_id":2226753045,
//   		"param_type":"continuous",
//   		"param_value":0.000000
//   	}
//   	],
//   	"plugin_state_size":104,
//   	"plugin_state":[115,49,118,99,2,0,...],
//   	"lut_edge_length":17,
//   	"lut_points":[0.000000,0.000000,0.000000,...]
//   }
#pragma once

#include <string>

namespace ov1
{

class icomponent_v1;

/// The component's present values, state and table as a preset. The table, brought up to date first, is there only
/// when the component answers for "lut_exporter": red outermost, blue innermost, three channels a point. Without line
/// feed at the end; the same bytes whatever the locale. Valid JSON unless a parameter is of no known kind or has a
/// name with quotes, backslashes or control characters: names stand as they are.
std::string write_preset_text(icomponent_v1& component);

} // namespace ov1

// Writes the text of a preset: every value in readable form, the state as bytes, and the colour table. Tabs and line
// feeds are as shown; "..." stands for the rest of a list:
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

/// The component's present values, state and table as a preset. The table is brought up to date first; it is left out
/// if the component does not offer "lut_exporter". Its order: red outermost, blue innermost, three numbers per point.
/// No line feed at the end; the same bytes in every locale. Names are not escaped: the text is valid JSON unless a
/// parameter is of an unknown type or its name contains quotes, backslashes or control characters.
std::string write_preset_text(icomponent_v1& component);

} // namespace ov1

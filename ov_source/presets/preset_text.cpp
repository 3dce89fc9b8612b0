#include "presets/preset_text.h"

#include "effect/lut/lut_argb_variable.h"
#include "framework/icomponent_v1.h"
#include "framework/lut_exporter.h"
#include "framework/parameters/iparameter_v1.h"

#include <cmath>
#include <fmt/format.h>
#include <iterator>
#include <string_view>

namespace ov1
{

namespace
{

// The format of the last two lines of every entry.
constexpr std::string_view type_and_value = "\t\t\"param_type\":\"{}\",\n\t\t\"param_value\":{}\n";

/// Six decimals with a point.
std::string number(float v) { return fmt::format("{:.6f}", v); }

/// Alpha first, as the reader expects.
std::string color(const param_argb& c)
{
    return '[' + number(c.alpha) + ", " + number(c.red) + ", " + number(c.green) + ", " + number(c.blue) + ']';
}

std::string type_and_value_of(const param_value& v)
{
    switch (v.type)
    {
    case param_type::continuous:
        // The reader applies only "continuos", the format's old spelling: the value is restored from the state.
        return fmt::format(type_and_value, "continuous", number(v.value.as_continuous()));
    case param_type::integral:
        return fmt::format(type_and_value, "integral", v.value.as_integral());
    case param_type::boolean:
        return fmt::format(type_and_value, "boolean", v.value.as_boolean());
    case param_type::color:
        return fmt::format(type_and_value, "color", color(v.value.as_color()));
    case param_type::unset:
        // The line that follows is no JSON. This effect has no such parameter.
        break;
    }
    return "\t\t// NOTE: Not yet supported\n" + fmt::format(type_and_value, "custom", "null");
}

void append_entry(std::string& text, iparameter_v1& parameter)
{
    text += "\t{\n\t\t\"param_name\":\"" + parameter.get_name() + "\",\n";
    text += "\t\t\"param_id\":" + std::to_string(parameter.get_uid()) + ",\n";
    text += type_and_value_of(parameter.get_param_value());
    text += "\t}";
}

void append_parameters(std::string& text, icomponent_v1& component)
{
    // Read once, so that the announced count matches the list.
    const int count = component.get_parameter_count();
    text += "\t\"parameter_count\":" + std::to_string(count) + ",\n\t\"parameters\":[\n";
    for (int i = 0; i < count; ++i)
    {
        append_entry(text, *component.get_parameter(i));
        text += i + 1 < count ? ",\n" : "\n";
    }
    text += "\t],\n";
}

void append_state(std::string& text, icomponent_v1& component)
{
    const auto state = component.get_state();
    text += "\t\"plugin_state_size\":" + std::to_string(state.size()) + ",\n";
    text += fmt::format("\t\"plugin_state\":[{}]", fmt::join(state, ","));
}

/// JSON cannot express NaN and infinities, which a damaged look table may contain.
float finite(float v) { return std::isfinite(v) ? v : 0.0f; }

void append_table(std::string& text, icomponent_v1& component)
{
    // Only other programs read the table: without it the preset is complete.
    iobject* found = nullptr;
    lut_argb_variable table;
    if (!component.query_interface("lut_exporter", &found))
        return;
    auto* exporter = dynamic_cast<lut_exporter*>(found);
    if (exporter == nullptr || !exporter->get_lut(&table) || table.edge_length == 0)
        return;
    text += ",\n\t\"lut_edge_length\":" + std::to_string(table.edge_length) + ",\n\t\"lut_points\":[";
    // Appended in place: a table of 17 points per axis has 14,739 numbers.
    for (std::size_t i = 0; i < table.values.size(); ++i)
    {
        const argb_float& p = table.values[i];
        fmt::format_to(std::back_inserter(text), "{}{:.6f},{:.6f},{:.6f}", i == 0 ? "" : ",", finite(p.r), finite(p.g),
                       finite(p.b));
    }
    text += "]";
}

} // namespace

std::string write_preset_text(icomponent_v1& component)
{
    const version v = component.get_version();
    std::string text = "{\n\t\"plugin_name\":\"" + component.get_name() + "\",\n";
    text += fmt::format("\t\"plugin_version\":\"{}.{}.{}\",\n", v.major, v.minor, v.patch);
    append_parameters(text, component);
    append_state(text, component);
    append_table(text, component);
    return text + "\n}";
}

} // namespace ov1

#include "host/bridge/parameter_map.h"

#include <algorithm>
#include <cstdlib>

namespace ov1
{

namespace
{

constexpr std::int64_t least_slider_values = 16; // fewer values make a popup
// Steps of a drag on the host's sliders, in the parameter's unit.
constexpr double float_delta = 0.05;
constexpr double int_delta = 1.0;
constexpr int entry_precision = 2; // decimals of a popup's texts

bool is_popup(const param_value& record)
{
    // In 64 bits: the bounds may span all integers.
    const std::int64_t count = std::int64_t{record.max.as_integral()} - record.min.as_integral() + 1;
    return std::abs(count) < least_slider_values;
}

/// The texts of all values from the lower to the upper bound, as the parameter itself writes them.
std::vector<std::string> popup_entries(iparameter_v1& parameter, const param_value& record)
{
    std::vector<std::string> entries;
    param_value one = record;
    for (int v = record.min.as_integral(); v <= record.max.as_integral(); ++v)
    {
        one.value = param_cell::of(v);
        std::string text;
        if (parameter.get_string_from_value(one, text, entry_precision))
            entries.push_back(text);
    }
    return entries;
}

/// Limits to 0..1. A NaN gives 0, because it fails the comparison.
float unit_float(double v) { return static_cast<float>(v > 0.0 ? std::min(v, 1.0) : 0.0); }

/// From the host's order and precision to the effect's.
param_argb narrowed(const host_color& c)
{
    return {static_cast<float>(c.alpha), static_cast<float>(c.red), static_cast<float>(c.green),
            static_cast<float>(c.blue)};
}

} // namespace

host_control host_control_of(const param_value& record)
{
    switch (record.type)
    {
    case param_type::continuous:
        return host_control::float_slider;
    case param_type::integral:
        return is_popup(record) ? host_control::popup : host_control::int_slider;
    case param_type::boolean:
        return host_control::toggle;
    case param_type::color:
        return host_control::color;
    case param_type::unset:
        break;
    }
    return host_control::none;
}

host_declaration declare_parameter(iparameter_v1& parameter, int index)
{
    const param_value record = parameter.get_param_value();
    host_declaration declaration;
    declaration.id = host_id_of(index);
    declaration.name = parameter.get_name();
    declaration.control = host_control_of(record);
    declaration.flags = parameter.get_flags() & parameter_is_hidden ? host_flag::hidden : 0u;
    declaration.default_value = host_value_of(record);
    switch (declaration.control)
    {
    case host_control::float_slider:
        declaration.min = record.min.as_continuous();
        declaration.max = record.max.as_continuous();
        declaration.delta = float_delta;
        break;
    case host_control::int_slider:
        declaration.min = record.min.as_integral();
        declaration.max = record.max.as_integral();
        declaration.delta = int_delta;
        break;
    case host_control::popup:
        declaration.entries = popup_entries(parameter, record);
        break;
    case host_control::color:
        // The effect uses the channels as they are; the host must not apply its colour management to them.
        declaration.flags |= host_flag::dont_remap_colors;
        break;
    default:
        break;
    }
    return declaration;
}

std::vector<host_declaration> declare_parameters(icomponent_v1& component)
{
    std::vector<host_declaration> declarations;
    for (int index = 0; index < component.get_parameter_count(); ++index)
    {
        const auto parameter = component.get_parameter(index);
        if (!parameter)
            continue; // a gap in the registry keeps the ids of the parameters after it
        host_declaration declaration = declare_parameter(*parameter, index);
        if (declaration.control != host_control::none)
            declarations.push_back(std::move(declaration));
    }
    return declarations;
}

host_value host_value_of(const param_value& record)
{
    switch (host_control_of(record))
    {
    case host_control::int_slider:
        return record.value.as_integral();
    case host_control::popup:
        return record.value.as_integral() - record.min.as_integral();
    case host_control::toggle:
        return record.value.as_boolean();
    case host_control::color:
    {
        const param_argb c = record.value.as_color();
        return host_color{c.red, c.green, c.blue, c.alpha};
    }
    default:
        return double{record.value.as_continuous()};
    }
}

void take_host_value(const host_value& value, param_value& record)
{
    const host_control control = host_control_of(record);
    // The type must be the control's: an integer never becomes a float slider's value, nor a double a popup's.
    const auto* const whole = std::get_if<int>(&value);
    if (const auto* number = std::get_if<double>(&value); number && control == host_control::float_slider)
        record.value = param_cell::of(static_cast<float>(*number));
    else if (whole && control == host_control::int_slider)
        record.value = param_cell::of(std::int32_t{*whole});
    else if (whole && control == host_control::popup)
    {
        // The host may give any index. The parameter limits the value to its bounds when it is set.
        const std::int64_t v = std::int64_t{*whole} + record.min.as_integral();
        record.value = param_cell::of(static_cast<std::int32_t>(std::clamp<std::int64_t>(v, INT32_MIN, INT32_MAX)));
    }
    else if (const auto* on = std::get_if<bool>(&value); on && control == host_control::toggle)
        record.value = param_cell::of(*on);
    else if (const auto* c = std::get_if<host_color>(&value); c && control == host_control::color)
        record.value = param_cell::of(
            param_argb{unit_float(c->alpha), unit_float(c->red), unit_float(c->green), unit_float(c->blue)});
}

bool host_differs(const host_value& at_host, const param_value& record)
{
    // Comparing narrowed values keeps a value that only went to the host and back from being written again.
    const host_value wanted = host_value_of(record);
    // A value of another type differs too: the host then gets one of the right type.
    if (at_host.index() != wanted.index())
        return true;
    if (const auto* number = std::get_if<double>(&at_host))
        return static_cast<float>(*number) != record.value.as_continuous();
    if (const auto* c = std::get_if<host_color>(&at_host))
        return narrowed(*c) != record.value.as_color();
    return at_host != wanted;
}

} // namespace ov1

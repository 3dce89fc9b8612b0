#include "standalone/jobs/effect_instance.h"

#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"
#include "platform/atomic_file.h"
#include "standalone/jobs/preset_source.h"

#include <optional>

namespace ov1
{

namespace
{

// A state takes a few kilobytes; the limit keeps a wrong file name from filling the memory.
constexpr std::size_t largest_state_file = std::size_t{16} << 20;

/// The value of a cell as the command line shows it; 0 for types that it cannot set.
double number_in(param_type type, const param_cell& cell)
{
    switch (type)
    {
    case param_type::continuous:
        return cell.as_continuous();
    case param_type::integral:
        return cell.as_integral();
    case param_type::boolean:
        return cell.as_boolean() ? 1.0 : 0.0;
    default:
        return 0.0;
    }
}

parameter_info describe(iparameter_v1& parameter)
{
    const param_value record = parameter.get_param_value();
    parameter_info info{parameter.get_name(), record.type, 0.0, 1.0, number_in(record.type, record.default_value)};
    if (record.type == param_type::continuous)
    {
        info.min = record.min.as_continuous();
        info.max = record.max.as_continuous();
    }
    else if (record.type == param_type::integral)
    {
        info.min = record.min.as_integral();
        info.max = record.max.as_integral();
    }
    return info;
}

/// The inverse of number_in. The value has been checked against the type and the range.
param_cell cell_of(param_type type, double value)
{
    if (type == param_type::boolean)
        return param_cell::of(value != 0.0);
    if (type == param_type::integral)
        return param_cell::of(static_cast<std::int32_t>(value));
    return param_cell::of(static_cast<float>(value));
}

result<std::vector<std::uint8_t>> read_state_file(icomponent_v1& component, const std::string& path)
{
    auto bytes = read_file(path, largest_state_file);
    if (!bytes)
        return about(path, bytes.error());
    if (const auto checked = check_state_blob(*bytes); !checked)
        return about(path, checked.error());
    failure why{failure_kind::invalid_grade, path};
    // The component has the last word: a well-formed state may still come from another effect.
    if (component.is_state_rejected(*bytes, true, why.reason))
        return why;
    return bytes;
}

/// Reads a preset and asks the component whether it fits, without applying it.
result<preset_content> read_accepted_preset(preset_manager& presets, icomponent_v1& component, const std::string& name)
{
    auto content = read_preset(presets, name);
    if (content)
        if (const auto accepted = check_preset(*content, component); !accepted)
            return about(name, accepted.error());
    return content;
}

void assign(icomponent_v1& component, const std::vector<assignment>& assignments)
{
    for (const assignment& a : assignments)
    {
        const auto parameter = component.get_parameter(static_cast<int>(a.parameter));
        param_value record = parameter->get_param_value();
        record.value = cell_of(record.type, a.value);
        // true: the change comes from a host, so the wheels do not limit each other's values.
        parameter->set_param_value(record, true);
    }
}

} // namespace

effect_instance::effect_instance(const host_maker& make_host)
    : component(create_ccomponent())
    , presets(component)
{
    component->initialize(make_host ? make_host(component) : std::make_shared<chost_v1>(component));
    for (int i = 0; i < component->get_parameter_count(); ++i)
        parameters.push_back(describe(*component->get_parameter(i)));
}

effect_instance::~effect_instance() { component->terminate(); }

std::vector<grade_value> effect_instance::get_values()
{
    std::vector<grade_value> values;
    for (int i = 0; i < component->get_parameter_count(); ++i)
    {
        const auto parameter = component->get_parameter(i);
        const param_value record = parameter->get_param_value();
        values.push_back({parameter->get_name(), record.type, static_cast<float>(number_in(record.type, record.value)),
                          record.is_default_value()});
    }
    return values;
}

std::vector<failure> effect_instance::apply(const grade_request& request)
{
    // Everything is read and checked before anything is set, so that a failure leaves the effect unchanged.
    auto [assignments, failures] = resolve_grade(request, parameters);
    std::vector<std::uint8_t> state;
    if (request.state_file)
    {
        if (auto read = read_state_file(*component, *request.state_file))
            state = *std::move(read);
        else
            failures.push_back(read.error());
    }
    std::optional<preset_content> preset;
    if (!request.presets.empty())
    {
        if (auto read = read_accepted_preset(presets, *component, request.presets.back()))
            preset = *std::move(read);
        else
            failures.push_back(read.error());
    }
    if (!failures.empty())
        return failures;

    if (request.state_file)
        component->set_state(state, true);
    if (preset)
        if (const auto applied = apply_preset(*std::move(preset), *component); !applied)
            return {about(request.presets.back(), applied.error())};
    assign(*component, assignments);
    // Brings the table up to date: a renderer uses the table of the moment at which it is handed out.
    component->notify({event_kind::render_begins});
    return {};
}

} // namespace ov1

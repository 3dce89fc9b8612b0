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

constexpr std::size_t largest_state_file = std::size_t{16} << 20;

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

param_cell cell_of(param_type type, double value)
{
    if (type == param_type::boolean)
        return param_cell::of(value != 0.0);
    if (type == param_type::integral)
        return param_cell::of(static_cast<std::int32_t>(value));
    return param_cell::of(static_cast<float>(value));
}

bool read_state_file(icomponent_v1& component, const std::string& path, std::vector<std::uint8_t>& bytes, problem& why)
{
    why = {exit_code::unreadable, path, {}, {}};
    auto found = read_file(path, largest_state_file);
    if (!found)
    {
        why.reason = found.error().reason;
        return false;
    }
    bytes = *std::move(found);
    why.code = exit_code::invalid_grade;
    if (const auto checked = check_state_blob(bytes); !checked)
    {
        why.reason = checked.error().reason;
        return false;
    }
    return !component.is_state_rejected(bytes, true, why.reason);
}

void assign(icomponent_v1& component, const std::vector<assignment>& assignments)
{
    for (const assignment& a : assignments)
    {
        const auto parameter = component.get_parameter(static_cast<int>(a.parameter));
        param_value record = parameter->get_param_value();
        record.value = cell_of(record.type, a.value);
        parameter->set_param_value(record, true);
    }
}

} // namespace

effect_instance::effect_instance(const host_maker& make_host)
    : component(create_ccomponent())
    , presets(component)
{
    component->initialize(make_host ? make_host(component) : std::make_shared<chost_v1>(component));
}

effect_instance::~effect_instance() { component->terminate(); }

std::vector<parameter_info> effect_instance::describe_parameters()
{
    std::vector<parameter_info> table;
    for (int i = 0; i < component->get_parameter_count(); ++i)
        table.push_back(describe(*component->get_parameter(i)));
    return table;
}

bool effect_instance::apply(const grade_request& request, std::vector<problem>& problems)
{
    std::vector<assignment> assignments;
    bool sound = resolve_grade(request, describe_parameters(), assignments, problems);
    const auto keep = [&](bool read, const problem& why)
    {
        if (!read)
            problems.push_back(why);
        sound = sound && read;
    };
    problem why;
    std::vector<std::uint8_t> state;
    if (request.state_file)
        keep(read_state_file(*component, *request.state_file, state, why), why);
    std::optional<preset_content> preset;
    if (!request.presets.empty())
    {
        why = {exit_code::invalid_grade, request.presets.back(), {}, {}};
        keep(read_preset(presets, request.presets.back(), preset.emplace(), why) &&
                 is_preset_accepted(*preset, *component, why.reason),
             why);
    }
    if (!sound)
        return false;

    if (request.state_file)
        component->set_state(state, true);
    if (preset && !apply_preset(*preset, *component, why.reason))
    {
        problems.push_back({exit_code::invalid_grade, request.presets.back(), why.reason, {}});
        return false;
    }
    assign(*component, assignments);
    component->notify({event_kind::render_begins});
    return true;
}

} // namespace ov1

#include "host/bridge/mapped_parameters.h"

#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"

#include <algorithm>

namespace ov1
{

std::vector<param_value> copy_values(icomponent_v1& component)
{
    std::vector<param_value> values;
    for (int place = 0; place < component.get_parameter_count(); ++place)
        if (const auto parameter = component.get_parameter(place))
            values.push_back(parameter->get_param_value());
    return values;
}

std::vector<int> mapped_parameters(icomponent_v1& component, std::span<const param_value> before,
                                   std::span<const std::uint8_t> state)
{
    std::vector<state_record> records;
    if (!read_state(state, records))
        return {};
    std::ranges::reverse(records); // so that the last record of a parameter is found first
    std::vector<int> moved;
    for (int place = 0; static_cast<std::size_t>(place) < before.size(); ++place)
    {
        const auto parameter = component.get_parameter(place);
        if (!parameter)
            break;
        const param_value now = parameter->get_param_value();
        const auto named = std::ranges::find(records, parameter->get_uid(), &state_record::id);
        const bool as_named = named != records.end() && named->value.type == now.type &&
                              same_value(now.type, named->value.value, now.value);
        if (!as_named && !same_value(now.type, before[static_cast<std::size_t>(place)].value, now.value))
            moved.push_back(place);
    }
    return moved;
}

} // namespace ov1

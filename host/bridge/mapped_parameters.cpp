#include "host/bridge/mapped_parameters.h"

#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"

#include <algorithm>

namespace ov1
{

std::vector<param_value> copy_values(icomponent_v1& component)
{
    std::vector<param_value> values;
    for (int index = 0; index < component.get_parameter_count(); ++index)
        if (const auto parameter = component.get_parameter(index))
            values.push_back(parameter->get_param_value());
    return values;
}

std::vector<int> mapped_parameters(icomponent_v1& component, std::span<const param_value> before,
                                   std::span<const std::uint8_t> state)
{
    std::vector<state_record> records;
    if (!read_state(state, records))
        return {};
    std::ranges::reverse(records); // a parameter may have several records: find the last one first
    std::vector<int> changed;
    for (int index = 0; static_cast<std::size_t>(index) < before.size(); ++index)
    {
        const auto parameter = component.get_parameter(index);
        // copy_values skips gaps in the registry, so beyond one the indices no longer match.
        if (!parameter)
            break;
        const param_value now = parameter->get_param_value();
        const auto last_record = std::ranges::find(records, parameter->get_uid(), &state_record::id);
        // The host's document has a recorded value a second time, under the parameter's own id: nothing to repair.
        const bool is_as_recorded = last_record != records.end() && last_record->value.type == now.type &&
                                    same_value(now.type, last_record->value.value, now.value);
        if (!is_as_recorded && !same_value(now.type, before[static_cast<std::size_t>(index)].value, now.value))
            changed.push_back(index);
    }
    return changed;
}

} // namespace ov1

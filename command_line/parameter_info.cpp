#include "command_line/parameter_info.h"

#include "command_line/choice.h"
#include "command_line/edit_distance.h"
#include "command_line/number.h"

#include <algorithm>

namespace ov1
{

namespace
{

/// What the user may write for a switch. Suggestions are taken from these words too.
constexpr std::array<choice<double>, 8> switch_words{{
    {"true", 1.0},
    {"false", 0.0},
    {"on", 1.0},
    {"off", 0.0},
    {"yes", 1.0},
    {"no", 0.0},
    {"1", 1.0},
    {"0", 0.0},
}};

/// The failure has no subject.
result<double> read_value(std::string_view text, const parameter_info& parameter)
{
    switch (parameter.type)
    {
    case param_type::continuous:
        return read_number_within(text, parameter.min, parameter.max);
    case param_type::integral:
    {
        const auto number =
            read_whole_number_within(text, static_cast<int>(parameter.min), static_cast<int>(parameter.max));
        if (!number)
            return number.error();
        // Every int is exact as a double.
        return static_cast<double>(*number);
    }
    case param_type::boolean:
        return read_choice(text, switch_words);
    case param_type::color:
    case param_type::unset:
        break;
    }
    return failure{failure_kind::usage, {}, "cannot be set on the command line", {}};
}

} // namespace

result<std::size_t> find_parameter(std::string_view name, std::span<const parameter_info> table)
{
    const std::string plain = plain_name(trimmed(name));
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const parameter_info& p) { return plain_name(p.name) == plain; });
    if (found != table.end())
        return static_cast<std::size_t>(found - table.begin());
    std::vector<std::string> names;
    for (const parameter_info& p : table)
        names.push_back(p.name);
    const std::string near = did_you_mean(name, names);
    return failure{failure_kind::usage, std::string(trimmed(name)), "no such parameter",
                   near.empty() ? "\"veridial params\" lists them" : near};
}

result<double> read_parameter_value(std::string_view text, const parameter_info& parameter)
{
    auto value = read_value(text, parameter);
    if (!value)
        return about(parameter.name, value.error());
    return value;
}

result<assignment> read_assignment(std::string_view name, std::string_view text, std::span<const parameter_info> table)
{
    const auto index = find_parameter(name, table);
    if (!index)
        return index.error();
    const auto value = read_parameter_value(text, table[*index]);
    if (!value)
        return value.error();
    return assignment{*index, *value};
}

} // namespace ov1

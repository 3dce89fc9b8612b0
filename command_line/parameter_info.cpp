#include "command_line/parameter_info.h"

#include "command_line/choice.h"
#include "command_line/edit_distance.h"
#include "command_line/number.h"

#include <algorithm>

namespace ov1
{

namespace
{

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

} // namespace

bool find_parameter(std::string_view name, std::span<const parameter_info> table, std::size_t& place, problem& why)
{
    const std::string plain = plain_name(trimmed(name));
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const parameter_info& p) { return plain_name(p.name) == plain; });
    if (found != table.end())
    {
        place = static_cast<std::size_t>(found - table.begin());
        return true;
    }
    std::vector<std::string> names;
    for (const parameter_info& p : table)
        names.push_back(p.name);
    const std::string near = did_you_mean(name, names);
    why = {exit_code::usage, std::string(trimmed(name)), "no such parameter",
           near.empty() ? "\"veridial params\" lists them" : near};
    return false;
}

bool read_parameter_value(std::string_view text, const parameter_info& parameter, double& value, problem& why)
{
    why = {exit_code::usage, parameter.name, {}, {}};
    switch (parameter.type)
    {
    case param_type::continuous:
        return read_number_within(text, parameter.min, parameter.max, value, why);
    case param_type::integral:
    {
        int number = 0;
        const bool read = read_whole_number_within(text, static_cast<int>(parameter.min),
                                                   static_cast<int>(parameter.max), number, why);
        if (read)
            value = number;
        return read;
    }
    case param_type::boolean:
        return read_choice(text, switch_words, value, why);
    case param_type::color:
    case param_type::unset:
        break;
    }
    why.reason = "cannot be set on the command line";
    return false;
}

} // namespace ov1

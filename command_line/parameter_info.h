// What the command line needs to know of a parameter.
#pragma once

#include "command_line/problem.h"
#include "shared/param_value.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ov1
{

/// Booleans go from 0 to 1.
struct parameter_info
{
    std::string name;
    param_type type = param_type::continuous;
    double min = 0.0;
    double max = 0.0;
    double default_value = 0.0;
};

/// The place of a parameter by its name, in any case, with blanks, dashes, underscores or none. On failure the problem
/// names the parameter that may have been meant.
[[nodiscard]] bool find_parameter(std::string_view name, std::span<const parameter_info> table, std::size_t& place,
                                  problem& why);

/// A value for the parameter. Numbers must lie within its range; booleans are true or false, on or off, yes or no, 1 or
/// 0. Colours cannot be given as text.
[[nodiscard]] bool read_parameter_value(std::string_view text, const parameter_info& parameter, double& value,
                                        problem& why);

} // namespace ov1

// Parameters by name, and their values as text.
#pragma once

#include "shared/param_value.h"
#include "shared/result.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ov1
{

/// A parameter as the command line sees it; booleans range from 0 to 1.
struct parameter_info
{
    std::string name;
    param_type type = param_type::continuous;
    double min = 0.0;
    double max = 0.0;
    /// Within min and max.
    double default_value = 0.0;
};

/// What a parameter is set to: its index in the table, and the value; booleans are 0 or 1.
struct assignment
{
    std::size_t parameter = 0;
    double value = 0.0;
};

/// The index of a parameter by its name, in any case, with blanks, dashes, underscores or none. The failure's hint
/// names the parameter that may have been meant.
result<std::size_t> find_parameter(std::string_view name, std::span<const parameter_info> table);

/// A value for the parameter. Numbers must lie within its range; booleans are true or false, on or off, yes or no, 1 or
/// 0. Colours cannot be given as text. The failure's subject is the parameter's name.
result<double> read_parameter_value(std::string_view text, const parameter_info& parameter);

/// A parameter by its name, with a value for it.
/// Fails as find_parameter or read_parameter_value does.
result<assignment> read_assignment(std::string_view name, std::string_view text, std::span<const parameter_info> table);

} // namespace ov1

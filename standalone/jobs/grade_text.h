// The values of a grade as text.
#pragma once

#include "command_line/parameter_info.h"

#include <span>
#include <string>

namespace ov1
{

/// One parameter of a grade.
struct grade_value
{
    std::string name;
    param_type type = param_type::continuous; ///< or boolean
    float value = 0.0f;                       ///< of a boolean, 0 or 1
    bool is_default = true;
};

/// Options for another command, on one line: -s "Sky Angle=90" -s ... for every number that differs from its default.
/// Switches such as the bypass are left out.
/// Numbers are the shortest that read back as the same float, so that the grade is restored exactly.
std::string grade_options(std::span<const grade_value> values);

/// A line such as Sky Angle=90 for every parameter that differs from its default.
std::string grade_lines(std::span<const grade_value> values);

/// A JSON object of all numbers, and of the switches if they are wanted.
/// Keys are the parameters' names, in their order; no line feed at the end.
std::string grade_json(std::span<const grade_value> values, bool with_switches);

} // namespace ov1

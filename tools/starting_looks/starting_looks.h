// The looks that come with the product, as values of parameters.
#pragma once

#include <span>
#include <vector>

namespace ov1
{

struct look_value
{
    const char* parameter; ///< a name of parameter_table
    float value;           ///< in the parameter's unit, within its bounds
};

/// Parameters that a look does not name keep their defaults.
struct starting_look
{
    const char* name; ///< the preset's name
    std::vector<look_value> values;
};

std::span<const starting_look> get_starting_looks();

} // namespace ov1

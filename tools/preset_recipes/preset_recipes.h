// The bundled presets as parameter values.
#pragma once

#include <span>
#include <vector>

namespace ov1
{

/// One control and its value.
struct recipe_value
{
    const char* parameter; ///< a name of parameter_table
    float value;           ///< in the parameter's unit, within its bounds
};

/// Parameters that a recipe does not name keep their defaults.
struct preset_recipe
{
    const char* name; ///< the preset's name
    std::vector<recipe_value> values;
};

/// In the order in which make_presets writes them. The recipes live until the program ends.
std::span<const preset_recipe> get_preset_recipes();

} // namespace ov1

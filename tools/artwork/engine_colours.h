// What the engine makes of single colours.
#pragma once

#include "effect/lut/integer_hsl.h"
#include "effect/lut/lut_argb.h"
#include "effect/parameter_table.h"
#include "effect/skin_tables.h"
#include "effect/veridial_luts.h"

#include <span>
#include <vector>

namespace ov1
{

struct asked_value
{
    parameter_index parameter;
    double value; ///< in the parameter's own unit
};

/// Look tables and skin data, read once. Not for use from several threads.
class engine_colours
{
public:
    /// Colours after the grade with these values and all others at their defaults; code values, 0..1.
    std::vector<rgb_double> graded(std::span<const rgb_double> colours, std::span<const asked_value> values);

private:
    veridial_luts looks;
    skin_tables skin;
    lut_argb<lut_edge> table;
};

} // namespace ov1

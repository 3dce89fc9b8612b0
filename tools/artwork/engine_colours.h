// Single colours graded by the engine.
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

/// A parameter that differs from its default.
struct parameter_setting
{
    parameter_index parameter;
    double value; ///< in the parameter's own unit
};

/// Reads look tables and skin data once, at construction. For one thread.
class engine_colours
{
public:
    /// Grades colours with these parameters and all others at their defaults; code values, 0..1.
    std::vector<rgb_double> graded(std::span<const rgb_double> colours, std::span<const parameter_setting> values);

private:
    veridial_luts looks;
    skin_tables skin;
    lut_argb<lut_edge> table;
};

} // namespace ov1

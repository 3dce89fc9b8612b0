// The build of the table, step by step and entry by entry: what a build means, and what every faster one is held to.
#pragma once

#include "effect/grade_settings.h"
#include "effect/reference/lut.h"
#include "effect/skin_tables.h"
#include "effect/veridial_luts.h"

namespace ov1
{

/// As build_lut, to the bit, at some three times the cost and more.
void build_lut_reference(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
                         lut<lut_edge>& table);

} // namespace ov1

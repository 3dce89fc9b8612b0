// The build of the table in plain code, one step after another on the whole table: it defines what a build means. Tests
// compare the vector kernel with it to the bit.
#pragma once

#include "effect/grade_settings.h"
#include "effect/reference/lut.h"
#include "effect/skin_tables.h"
#include "effect/veridial_luts.h"

namespace ov1
{

/// As build_lut, with the same bits and several times its cost: every step is a plain loop over the whole table.
/// Tests and benchmarks compare build_lut with it. Writes every entry of table.
void build_lut_reference(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
                         lut<lut_edge>& table);

} // namespace ov1

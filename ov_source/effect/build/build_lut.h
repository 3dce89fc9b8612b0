// The build: turns the parameters' values into the one table that every pixel goes through.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut/lut_argb.h"
#include "effect/skin_tables.h"
#include "effect/veridial_luts.h"

namespace ov1
{

/// Rewrites every entry of table, alpha 1. Depends only on its arguments, whose values are finite; the same values give
/// the same bits on every processor. Intermediate colours are computed in double precision and whole thousandths,
/// entries are kept as floats.
///
/// The order of the steps: wheels as points that bend the grid, sky and greenery, skin, global chroma and luminance,
/// saturation of the zones, film contrast. With the bypass on, the table is the exact identity.
void build_lut(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
               lut_argb<lut_edge>& table);

} // namespace ov1

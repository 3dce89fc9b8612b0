// The build: from the parameters' values to the one table that every pixel goes through.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut/lut_argb.h"
#include "effect/skin_tables.h"
#include "effect/veridial_luts.h"

namespace ov1
{

/// Rewrites table. Depends on nothing but its arguments, which are finite; the same values give the same bits on every
/// processor. Intermediate colours are computed in double precision and whole thousandths, entries are kept as floats.
/// Builds in this order: wheels as points on the grid, sky and greenery, skin, global chroma and luminance, saturation
/// of the zones, film contrast. With the bypass on the table is the exact identity.
void build_lut(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
               lut_argb<lut_edge>& table);

} // namespace ov1

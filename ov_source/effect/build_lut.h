// The build: from the parameters' values to the one table that every pixel goes through.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut.h"
#include "effect/veridial_luts.h"

namespace ov1
{

/// What a skin push mixes in, made from the compiled-in data.
struct skin_tables
{
    skin_tables();

    lut_argb<lut_edge> lighter;
    lut_argb<lut_edge> darker;
    lut_argb<lut_edge> yellowish;
    lut_argb<lut_edge> reddened;
};

/// Rewrites table. Depends on nothing but its arguments; the same values give the same bits. Intermediate colours are
/// computed in double precision and whole thousandths, entries are kept as floats. Builds in this order: wheels as
/// points on the grid, sky and greenery, skin, global chroma and luminance, saturation of the zones, film contrast.
/// With the bypass on the table is the exact identity.
void build_lut(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
               lut<lut_edge>& table);

} // namespace ov1

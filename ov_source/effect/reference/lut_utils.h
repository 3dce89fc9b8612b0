// Operations on whole tables, of which the build is composed.
// Each function visits every grid point in table order. All keep single precision between the steps, as the vector code
// does.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_mask.h"

#include <cstddef>

namespace ov1::lut_utils
{

/// dst += (src - identity) x amount, at every grid point and in all four channels. With limit, the channels are then
/// limited to 0..1 (a NaN becomes 0) and alpha becomes 1; without it the sum is stored as it is.
template <std::size_t edge>
void add(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount, bool limit);

/// Moves every entry of dst towards src.lookup(entry) by an amount of 0..1: 0 changes nothing, 1 gives the composition,
/// dst first and src second.
template <std::size_t edge>
void apply(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount);

/// Adds an amount of chroma (percent points, positive or negative) to every entry, weighted by the mask. Hue, lightness
/// and alpha stay, up to the rounding of the integer conversion (integer_hsl.h). Entries of up to 1 percent of chroma
/// get nothing and those of up to 7 percent less, so that near-greys do not change. The conversion scales by 256 / 255:
/// an amount of 0 does not return the same table.
template <std::size_t edge>
void add_chroma(lut_argb<edge>& table, int amount, const lut_mask<edge>& mask, mask_mode mode);

extern template void add<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float, bool);
extern template void apply<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float);
extern template void add_chroma<lut_edge>(lut_argb<lut_edge>&, int, const lut_mask<lut_edge>&, mask_mode);

} // namespace ov1::lut_utils

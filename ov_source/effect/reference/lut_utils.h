// Operations on whole tables, as the build composes them.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_mask.h"

#include <cstddef>

namespace ov1::lut_utils
{

/// dst += (src - identity) x amount, at every grid point and in all four channels. With limit the channels are then
/// held within 0..1 (a NaN becomes 0) and alpha is 1; without it the sum stands as it is.
template <std::size_t edge>
void add(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount, bool limit);

/// Moves every entry of dst towards src.lookup(entry) by an amount of 0..1: 0 changes nothing, 1 has dst followed by
/// src.
template <std::size_t edge>
void apply(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount);

/// Adds an amount (percent points, of either sign) of chroma to every entry, weighted by the mask, at the same hue and
/// lightness as far as the integer conversion (integer_hsl.h) allows. Chroma up to 1 % is left alone and up to 7 %
/// pushed in proportion, so that near-greys keep still. Alpha stays. The conversion scales by 256 / 255: an amount of 0
/// does not give back the table.
template <std::size_t edge>
void add_chroma(lut_argb<edge>& table, int amount, const lut_mask<edge>& mask, mask_mode mode);

extern template void add<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float, bool);
extern template void apply<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float);
extern template void add_chroma<lut_edge>(lut_argb<lut_edge>&, int, const lut_mask<lut_edge>&, mask_mode);

} // namespace ov1::lut_utils

// What the skin pad and its two arcs do to a table.
#pragma once

#include "effect/lut/lut_argb.h"

namespace ov1::lut_utils
{

inline constexpr double least_skin_push = 0.001;
inline constexpr double most_skin_chroma_percent = 40.0;

/// Holds skin back, then pushes it. All amounts at 0 change nothing.
///   protect      0..1: first moves skin entries towards the identity, against wheels and looks alike
///   chroma_push  -1..1: more or less chroma, 40 % at most
///   hue_push     -1..1: towards yellowish where positive, towards reddened where negative
///   brightness   -1..1: towards lighter where positive, towards darker where negative
/// A push or brightness of magnitude below 0.001 does nothing. Entries are held within 0..1 where anything acts.
template <std::size_t edge>
void modify_skin_tones(lut_argb<edge>& table, double protect, double chroma_push, double hue_push,
                       const lut_argb<edge>& yellowish, const lut_argb<edge>& reddened, double brightness,
                       const lut_argb<edge>& lighter, const lut_argb<edge>& darker);

extern template void modify_skin_tones<lut_edge>(lut_argb<lut_edge>&, double, double, double, const lut_argb<lut_edge>&,
                                                 const lut_argb<lut_edge>&, double, const lut_argb<lut_edge>&,
                                                 const lut_argb<lut_edge>&);

} // namespace ov1::lut_utils

// The skin pad and its two arcs: how they change a table.
// The weights of the masks belong to grid points, not to the present colours of the entries.
#pragma once

#include "effect/lut/lut_argb.h"

namespace ov1::lut_utils
{

/// Protects skin, then pushes it; the four amounts are those of skin_push (build_plan.h). Entries are limited to 0..1
/// where a push or the brightness acts.
template <std::size_t edge>
void modify_skin_tones(lut_argb<edge>& table, double protect, double chroma_push, double hue_push,
                       const lut_argb<edge>& yellowish, const lut_argb<edge>& reddened, double brightness,
                       const lut_argb<edge>& lighter, const lut_argb<edge>& darker);

extern template void modify_skin_tones<lut_edge>(lut_argb<lut_edge>&, double, double, double, const lut_argb<lut_edge>&,
                                                 const lut_argb<lut_edge>&, double, const lut_argb<lut_edge>&,
                                                 const lut_argb<lut_edge>&);

} // namespace ov1::lut_utils

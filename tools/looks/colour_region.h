// A region of colours with soft edges, and moves that act only inside it.
#pragma once

#include "tools/looks/colour_space.h"
#include "tools/looks/shaping.h"

namespace ov1
{

/// Selects colours in OKLCh by hue, lightness and chroma. The edges are wide enough for the 17-point grid: narrower
/// ones would fall between its points.
struct colour_region
{
    window hue; ///< degrees in rising order, below 0 and above 360 where the region crosses red
    double lightness_zero;
    double lightness_full; ///< full weight here and for all lighter colours
    double chroma_full;    ///< full weight here and for all paler colours
    double chroma_zero;

    /// The weight of a colour, 0..1. Near-greys are not treated specially: moved and mask_weight do that.
    double weight(const oklch& colour) const;
};

/// The change of a region's colours at full strength.
struct colour_move
{
    double lightness; ///< OKLab lightness, added at middle lightness, less towards black and white
    double chroma_ratio;
    double hue; ///< degrees, added
};

/// The colour after the move, in code values within 0..1. Everything outside the region is returned unchanged, and so
/// are near-greys, with at most one grid step between largest and smallest channel. These are all corners of the cells
/// on the grey diagonal, so the table keeps greys to the bit.
rgb_double moved(const rgb_double& code, const colour_region& region, const colour_move& move);

/// The region's weight for a mask: 0 on near-greys, as for moves, and full from full_steps grid steps from grey on.
double mask_weight(const rgb_double& code, const colour_region& region, double full_steps);

} // namespace ov1

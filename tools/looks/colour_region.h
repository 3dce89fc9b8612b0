// A region of colours with soft edges, and moves that act within it alone.
#pragma once

#include "tools/looks/colour_space.h"
#include "tools/looks/shaping.h"

namespace ov1
{

/// Selects in OKLCh by hue, lightness and chroma. The edges are as wide as the 17-point grid needs them.
struct colour_region
{
    window hue; ///< degrees in rising order; may run below 0 or above 360
    double lightness_zero;
    double lightness_full; ///< and all that is lighter
    double chroma_full;    ///< and all that is paler
    double chroma_zero;

    /// The weight of a colour, 0..1, whether or not it is nearly grey.
    double weight(const oklch& colour) const;
};

/// What happens to the colours of a region at full strength.
struct colour_move
{
    double lightness; ///< added at middle lightness, less towards black and white
    double chroma_ratio;
    double hue; ///< degrees, added
};

/// The colour after the move, in code values within 0..1. Near-greys, up to one grid step between largest and smallest
/// channel, and everything outside the region come back exactly as they are: with them all corners of the cells on the
/// grey diagonal, so that greys stay greys to the bit.
rgb_double moved(const rgb_double& code, const colour_region& region, const colour_move& move);

/// The region's weight for a mask: 0 on near-greys, as for moves, and full from so many grid steps from grey on.
double mask_weight(const rgb_double& code, const colour_region& region, double full_steps);

} // namespace ov1

// A colour point that bends the grid.
// A wheel of the editor becomes one point: the grey of its zone moves to the colour of its handle, and colours near it
// follow.
#pragma once

#include "shared/argb_float.h"

#include <vector>

namespace ov1
{

/// Moves the colours around source by target - source, less with growing distance. Ten floats.
struct lut_point
{
    argb_float source;         ///< the colour that is moved; r, g, b in 0..65535, alpha unused
    argb_float target;         ///< where it goes, in the same units
    float radius = 1.0f;       ///< as the user sets it, 1..256, limited to that
    float radius_scale = 0.0f; ///< derived (derive_reach), not read before
};

static_assert(sizeof(lut_point) == 40);

/// Replaces the radius as set by the reach, R squared, where R runs from 2 to 512 as the radius runs from 1 to 256, and
/// sets radius_scale to 65535 / R squared. The reach is the distance, in units of 1 / 65535, at which a point's effect
/// has fallen to nothing.
inline void derive_reach(lut_point& point)
{
    // A NaN fails the comparison and counts as 1.
    const float radius = point.radius > 1.0f ? point.radius : 1.0f;
    const float t = radius > 256.0f ? 1.0f : (radius - 1.0f) / 255.0f;
    const float reach = t * 510.0f + 2.0f;
    point.radius = reach * reach;
    point.radius_scale = 65535.0f / point.radius;
}

/// The points of a grade that bends nothing.
inline const std::vector<lut_point> no_lut_points;

} // namespace ov1

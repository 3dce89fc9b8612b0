// A colour point that bends the grid.
#pragma once

#include "shared/argb_float.h"

#include <vector>

namespace ov1
{

/// Moves the colours around source by target - source, fading with distance. Ten floats.
struct lut_point
{
    argb_float source;         ///< the colour that is moved; r, g, b in 0..65535, alpha unused
    argb_float target;         ///< where it goes, in the same units
    float radius = 1.0f;       ///< reach as given by the user, 1..256; outside is limited
    float radius_scale = 0.0f; ///< derived (derive_reach), never read before that
};

static_assert(sizeof(lut_point) == 40);

/// Turns the radius as given into the reach, R squared (lut.h), and its scale onto the falloff, 65535 / R squared.
inline void derive_reach(lut_point& point)
{
    const float radius = point.radius > 1.0f ? point.radius : 1.0f;
    const float t = radius > 256.0f ? 1.0f : (radius - 1.0f) / 255.0f;
    const float reach = t * 510.0f + 2.0f;
    point.radius = reach * reach;
    point.radius_scale = 65535.0f / point.radius;
}

inline const std::vector<lut_point> no_lut_points;

} // namespace ov1

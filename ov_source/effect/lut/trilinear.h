// Positions on the axes of a colour grid, and the trilinear interpolation between its points.
#pragma once

#include "shared/argb_float.h"
#include "shared/clamp.h"

#include <cstddef>

namespace ov1
{

/// Where a value falls on an axis: the grid points on both sides, and the distance from the lower one in grid steps.
struct grid_position
{
    std::size_t lower; ///< 0..edge-1
    std::size_t upper; ///< lower + 1, or lower at the last grid point
    float fraction;    ///< 0 <= fraction < 1
};

/// The position x, in grid steps, on an axis of edge grid points, at least 2. x is limited to 0..edge-1, and a NaN
/// counts as 0: no input reads outside the table.
constexpr grid_position grid_position_at(float x, std::size_t edge)
{
    x = clamped(x, static_cast<float>(edge - 1));
    const auto lower = static_cast<std::size_t>(x);
    // At the last grid point the upper one is the same: nothing beyond the axis is read.
    return {lower, (lower < edge - 2 ? lower : edge - 2) + 1, x - static_cast<float>(lower)};
}

/// fraction 0 gives from exactly; fraction 1 gives to up to a rounding.
constexpr float lerp(float from, float to, float fraction) { return from + (to - from) * fraction; }

/// All four channels alike, alpha included.
constexpr argb_float lerp(const argb_float& from, const argb_float& to, float fraction)
{
    return {lerp(from.a, to.a, fraction), lerp(from.r, to.r, fraction), lerp(from.g, to.g, fraction),
            lerp(from.b, to.b, fraction)};
}

/// Interpolates the eight entries around a position along red, then green, then blue. The order is part of the result:
/// the vector loops (interpolation-inl.h) keep it to give the same bits. entry(r, g, b) is the colour at a grid point.
template <class function>
constexpr argb_float trilinear(const grid_position& r, const grid_position& g, const grid_position& b,
                               const function& entry)
{
    // Four edges of the cell along red, then two lines along green, then one along blue.
    const auto along_red = [&](std::size_t green, std::size_t blue)
    { return lerp(entry(r.lower, green, blue), entry(r.upper, green, blue), r.fraction); };
    const argb_float c0 = lerp(along_red(g.lower, b.lower), along_red(g.upper, b.lower), g.fraction);
    const argb_float c1 = lerp(along_red(g.lower, b.upper), along_red(g.upper, b.upper), g.fraction);
    return lerp(c0, c1, b.fraction);
}

} // namespace ov1

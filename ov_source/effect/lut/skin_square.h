// The skin pad's angle, mapped onto the border of a square.
// The skin pad is a circle, but its two pushes are the coordinates of a square: at 45 degrees both are at full
// strength.
#pragma once

namespace ov1
{

/// A point on the border of the square of half-side 100 around the origin.
struct skin_square
{
    double u; ///< 100 at angle 0: more colour; -100 at 180: less
    double v; ///< -100 at angle 90: yellowish; 100 at 270: reddened
};

/// The border point at an angle in degrees, 0..360. The corners are at 45, 135, 225 and 315 degrees.
constexpr skin_square skin_square_of(double angle)
{
    constexpr double slope = 2.2222223; // 100 / 45 rounded up, so that the corners are always reached
    // Eight sections, two on each side of the square, in the order of growing angle.
    if (angle <= 45.0)
        return {100.0, -slope * angle};
    if (angle <= 90.0)
        return {100.0 - slope * (angle - 45.0), -100.0};
    if (angle <= 135.0)
        return {-slope * (angle - 90.0), -100.0};
    if (angle <= 180.0)
        return {-100.0, -100.0 + slope * (angle - 135.0)};
    if (angle <= 225.0)
        return {-100.0, slope * (angle - 180.0)};
    if (angle <= 270.0)
        return {-100.0 + slope * (angle - 225.0), 100.0};
    if (angle <= 315.0)
        return {slope * (angle - 270.0), 100.0};
    return {100.0, 100.0 - slope * (angle - 315.0)};
}

} // namespace ov1

// The weights of a pad's four directions at an angle.
// Pads have 0 at the top and angles grow counter-clockwise: up, left, down, right.
#pragma once

#include <array>

namespace ov1
{

/// Weights of the directions 1 to 4 at 0, 90, 180 and 270 degrees. At most two neighbours have a weight; weights are
/// linear between them and sum to 1. The angle is in degrees, 0..360, where 360 is 0 again.
constexpr std::array<double, 4> angle_weights(double angle)
{
    if (angle < 90.0)
        return {(90.0 - angle) / 90.0, angle / 90.0, 0.0, 0.0};
    if (angle < 180.0)
        return {0.0, (180.0 - angle) / 90.0, (angle - 90.0) / 90.0, 0.0};
    if (angle < 270.0)
        return {0.0, 0.0, (270.0 - angle) / 90.0, (angle - 180.0) / 90.0};
    return {(angle - 270.0) / 90.0, 0.0, 0.0, (360.0 - angle) / 90.0};
}

} // namespace ov1

#include "editor/controls/geometry/arc_geometry.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

// In points.
constexpr double half_thickness = 2.5;
constexpr double head_length = 2.5; // from the barbs to the tip

/// The angle at which a line of length reach rises by height. Clamped, because asin gives a NaN outside -1..1.
double angle_to(double height, double reach) { return std::asin(std::clamp(height / reach, -1.0, 1.0)); }

} // namespace

arc_angles arc_angles_of(double width, double centre, double min_pos, double max_pos)
{
    const double lowest = angle_to(max_pos - centre, width);
    const double highest = angle_to(centre - min_pos, width);
    // The range need not be symmetrical about the centre, so the two halves are computed separately.
    return {-lowest, lowest + highest};
}

arrow_outline arrow_outline_of(const arc_view& view, double angle)
{
    const bool points_right = view.orientation == COVArrowArcOrientation::pivot_left;
    // One set of formulas serves both sides: forward mirrors the horizontal axis.
    const double forward = points_right ? 1.0 : -1.0;
    const arc_point pivot = {points_right ? view.left : view.right, (view.top + view.bottom) / 2.0};
    const auto point_at = [&](double distance, double direction)
    { return arc_point{pivot.x + forward * distance * std::cos(direction), pivot.y - distance * std::sin(direction)}; };
    // From the arrow's axis to its edge, perpendicular, towards greater angles; y grows downwards.
    const double side_x = -forward * half_thickness * std::sin(angle);
    const double side_y = -half_thickness * std::cos(angle);

    const double tip = arrow_length(view.right - view.left, view.frame_width);
    const double barbs = tip - head_length;
    const double half_opening = std::atan(half_thickness / barbs); // of the barbs as the pivot sees them
    return {{{pivot.x - side_x, pivot.y - side_y},
             point_at(barbs, angle - half_opening),
             point_at(tip, angle),
             point_at(barbs, angle + half_opening),
             {pivot.x + side_x, pivot.y + side_y}}};
}

} // namespace ov1

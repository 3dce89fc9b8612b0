// The arrow of an arc slider: its angles and its outline. Lengths are in points; angles are in radians from the
// horizontal, positive upwards.
#pragma once

#include <array>

namespace ov1
{

inline constexpr double arrow_frame_points = 2.0; ///< width of the line around the arrow

/// From the top of the view to the arrow's position at value 1, and from the bottom to its position at value 0.
inline constexpr int arc_inset_points = 4;
/// The same for an arc with two arrows: they need room to move apart.
inline constexpr int spread_arc_inset_points = 9;
/// The largest angle between two arrows.
inline constexpr double full_spread_degrees = 15.0;

/// The side of the view that the arrow is fixed to, which is the side of the wheel.
enum class COVArrowArcOrientation
{
    pivot_right = 0, ///< the arrow points left
    pivot_left = 1,  ///< the arrow points right
};

/// The arrow's angle at value 0, and how far it turns until value 1.
struct arc_angles
{
    double start = 0.0;
    double sweep = 0.0;

    /// The angle at a normalised value.
    double at(double value) const { return start + sweep * value; }
};

/// Angles for a view of that width. Vertical positions, growing downwards: centre is the middle of the view, min_pos
/// belongs to value 1 and max_pos to value 0. A position further from the centre than the width counts as straight up
/// or down.
arc_angles arc_angles_of(double width, double centre, double min_pos, double max_pos);

/// From the pivot to the tip: the tip and the line around it end one point before the view's far side.
constexpr double arrow_length(double width, double frame_width) { return width - 1.0 - frame_width; }

struct arc_point
{
    double x = 0.0;
    double y = 0.0;
};

struct arc_view
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double frame_width = 0.0;
    COVArrowArcOrientation orientation = COVArrowArcOrientation::pivot_right;
};

/// Corners of the closed outline, in order: one end of the base at the pivot, barb, tip, barb, the other end.
using arrow_outline = std::array<arc_point, 5>;

/// An arrow 5 points thick, from the pivot in the middle of the view's side to arrow_length.
arrow_outline arrow_outline_of(const arc_view& view, double angle);

} // namespace ov1

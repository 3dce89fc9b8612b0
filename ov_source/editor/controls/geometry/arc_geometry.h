// The arrow of an arc slider: its angles, and its outline. Angles are in radians from the horizontal, positive upwards.
#pragma once

#include <array>

namespace ov1
{

/// The side of the view that the arrow is fixed to, which is where the wheel is.
enum class COVArrowArcOrientation
{
    pivot_right = 0, ///< the arrow points left
    pivot_left = 1,  ///< the arrow points right
};

/// Where an arrow stands at value 0, and how far it swings until value 1.
struct arc_angles
{
    double start = 0.0;
    double sweep = 0.0;

    /// Of a normalised value.
    double at(double value) const { return start + sweep * value; }
};

/// Angles of a view whose pixel range runs from min_pos, value 1, down to max_pos, value 0; centre is the view's
/// vertical one. Positions further from it than the view is wide count as straight up and down.
arc_angles arc_angles_of(double width, double centre, double min_pos, double max_pos);

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

/// Points of the closed outline, in order: one end of the base at the pivot, barb, tip, barb, the other end.
using arrow_outline = std::array<arc_point, 5>;

/// An arrow from the pivot, 5 points thick, whose tip with its frame ends a point before the view's far side.
arrow_outline arrow_outline_of(const arc_view& view, double angle);

} // namespace ov1

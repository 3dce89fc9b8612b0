// How a round pad's packed value, its angle and radius, and the position of its handle follow from each other.
//
//   place       x and y across the pad, 0..1 each, y growing downwards; the centre is 0.5, 0.5
//   angle       degrees, 0 <= angle < 360; 0 is up, and angles grow counter-clockwise, so that 90 is left
//   radius      percent of the distance from the centre to the wheel's rim, 0..100
//   max_radius  the rim's distance from the centre, where 1 is half the pad's width
#pragma once

#include <optional>

namespace ov1
{

inline constexpr double pad_handle_points = 12.0;      ///< the handle's diameter
inline constexpr double pad_handle_frame_points = 2.5; ///< width of the line around the handle
/// A pad's view is this much wider and higher than its picture.
inline constexpr int pad_margin_points = 1;

struct pad_place
{
    float x = 0.5F;
    float y = 0.5F;
};

struct pad_polar
{
    float angle = 0.0F;
    float radius = 0.0F;
};

/// In points from the upper left corner of the view.
struct pad_point
{
    double x = 0.0;
    double y = 0.0;
};

inline constexpr float pad_centre_value = 0.50005F; ///< the centre, packed

/// One number for a place, each axis rounded to 1/1000: x in the first three decimals, y in the next four. Equal to
/// the toolkit's CXYPad::calculateValue, to the bit.
float pack_pad_value(const pad_place& place);

/// The place that was packed. Single precision costs y 1/1000 at a few places of the right half.
pad_place unpack_pad_value(float value);

/// Angle and radius of a place; the radius is 100 on the rim and beyond it. Nothing for a place exactly on one of the
/// two axes through the centre: there a handle leaves angle and radius unchanged, so that the angle is kept while the
/// radius is 0.
std::optional<pad_polar> polar_of(const pad_place& place, float max_radius);

/// The place of an angle and a radius, not rounded.
pad_place place_of(const pad_polar& polar, float max_radius);

/// The handle moved right and down, in percent of the distance from the centre to the rim, and kept on the wheel. At
/// the centre the angle does not change.
pad_polar nudged(const pad_polar& polar, float right, float down);

/// The largest max_radius at which a handle on the rim, frame included, stays within a view of that width.
constexpr float max_radius_of(double width, double handle_diameter, double frame_width)
{
    return static_cast<float>((width - (handle_diameter - frame_width) / 2.0) / width);
}

/// Points from the view's centre to the middle of a handle at radius 100.
constexpr double handle_reach_of(double width, double handle_diameter, double frame_width)
{
    return (width - handle_diameter) / 2.0 * (width - (handle_diameter - frame_width) / 2.0) / width;
}

/// The place itself, or, beyond the rim, the point of the rim in the same direction.
pad_place pulled_onto_rim(const pad_place& place, float max_radius);

/// Where the handle's centre is drawn.
pad_point handle_centre(const pad_place& place, double width, double height, double handle_diameter);

/// Whether a point lies on the wheel, rim included.
bool pad_contains(const pad_point& point, double width, double height, float max_radius);

} // namespace ov1

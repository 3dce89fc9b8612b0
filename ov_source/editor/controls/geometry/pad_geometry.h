// How a round pad's one value, its angle and radius, and the place of its handle follow from one another.
//
//   place       x and y across the pad, 0..1 each, y growing downwards; the centre is 0.5, 0.5
//   angle       degrees, 0 <= angle < 360; 0 is up, and angles grow counter-clockwise, so that 90 is left
//   radius      percent of the way from the centre to the wheel's rim, 0..100
//   max_radius  the rim's distance from the centre, where 1 is half the pad's width
#pragma once

#include <optional>

namespace ov1
{

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

/// A point within the view, in points from its upper left corner.
struct pad_point
{
    double x = 0.0;
    double y = 0.0;
};

inline constexpr float pad_centre_value = 0.50005F; ///< the centre, packed

/// One number for a place, each axis rounded to 1/1000: x in its first three decimals, y in the four after them. These
/// are the toolkit's numbers, to the bit.
float pack_pad_value(const pad_place& place);

/// The place that was packed. Single precision costs y 1/1000 at a few places of the right half.
pad_place unpack_pad_value(float value);

/// Angle and radius of a place; the radius is 100 on the rim and beyond it. Nothing for a place exactly on one of the
/// two axes through the centre: there a handle leaves angle and radius as they were, so that the angle outlives a
/// radius of 0.
std::optional<pad_polar> polar_of(const pad_place& place, float max_radius);

/// The place of an angle and a radius, not rounded.
pad_place place_of(const pad_polar& polar, float max_radius);

/// A handle moved to the right and down, by percent of the way from the centre to the rim, and kept on the wheel. At
/// the centre the angle stays as it was.
pad_polar nudged(const pad_polar& polar, float right, float down);

/// The rim of a pad whose handle, frame included, stays within the view when it stands on it.
float max_radius_of(double width, double handle_diameter, double frame_width);

/// The place itself, or, where it lies beyond the rim, the rim's place in the same direction.
pad_place pulled_onto_rim(const pad_place& place, float max_radius);

/// Where the handle's centre is drawn.
pad_point handle_centre(const pad_place& place, double width, double height, double handle_diameter);

/// Whether a point lies on the wheel; the rim belongs to it.
bool pad_contains(const pad_point& point, double width, double height, float max_radius);

} // namespace ov1

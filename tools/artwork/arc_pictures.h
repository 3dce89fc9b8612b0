// The pictures of the arcs beside the pads: bands that show what a colour becomes at each position of the arrow.
#pragma once

#include "shared/argb_float.h"
#include "tools/artwork/engine_colours.h"
#include "tools/artwork/pad_pictures.h"

#include <string>
#include <vector>

namespace ov1
{

/// Size of an arc's picture and view. The arrow's pivot is on the view's edge, two points from the pad's middle. At
/// this width the band curves around the wheel a few points outside its rim, and two arcs beside a pad leave a margin
/// to the panel's edge.
inline constexpr double arc_width_points = 73.0;
inline constexpr double arc_height_points = pad_points; ///< ends level with the wheel
inline constexpr int arc_width_pixels = static_cast<int>(arc_width_points) * artwork_scale;
inline constexpr int arc_height_pixels = static_cast<int>(arc_height_points) * artwork_scale;

/// The side of the pad.
enum class arc_side
{
    left, ///< the pivot is the picture's right edge
    right
};

struct arc_picture
{
    std::string name; ///< file name among the resources
    arc_side side;
    double inset_points;             ///< see arc_inset_points
    std::vector<rgb_double> colours; ///< evenly spaced, from value 0, at the lower end, to value 1; code values, 0..1
};

/// Global saturation; the neutral ramp, left and right; brightness and protection of skin.
std::vector<arc_picture> make_arc_pictures(engine_colours& engine);

/// arc_width_pixels x arc_height_pixels, rows from the top, straight alpha: an anti-aliased band with round ends,
/// transparent outside. The colour at an angle is that of the value at which the arrow points there; beyond both ends
/// of the arrow's range the last colour continues.
std::vector<argb_float> draw_arc(const arc_picture& arc);

} // namespace ov1

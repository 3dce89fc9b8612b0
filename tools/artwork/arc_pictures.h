// The pictures of the arcs beside the pads: bands that show what becomes of a colour along the arrow's way.
#pragma once

#include "shared/argb_float.h"
#include "tools/artwork/engine_colours.h"

#include <string>
#include <vector>

namespace ov1
{

enum class arc_side
{
    left, ///< of the pad: the pivot is the picture's right edge
    right
};

struct arc_picture
{
    std::string name; ///< of the resource
    arc_side side;
    double inset_points;
    std::vector<rgb_double> colours; ///< evenly spaced, from the least value, at the lower end, to the greatest
};

/// Global saturation; the neutral ramp, left and right; brightness and protection of skin.
std::vector<arc_picture> make_arc_pictures(engine_colours& engine);

/// arc_width_pixels x arc_height_pixels, rows from the top, straight alpha: an anti-aliased band with round ends, clear
/// outside. Its colour at an angle is that of the value at which the arrow points there; beyond both ends it goes on.
std::vector<argb_float> draw_arc(const arc_picture& arc);

} // namespace ov1

// The pictures of the eight pads, made from what the engine does.
#pragma once

#include "editor/controls/geometry/artwork_scale.h"
#include "editor/controls/geometry/pad_geometry.h"
#include "shared/argb_float.h"
#include "tools/artwork/engine_colours.h"

#include <functional>
#include <string>
#include <vector>

namespace ov1
{

/// Width and height of a pad's picture, which the wheel fills. At this size pads, arcs, labels and sliders fit the
/// panel's columns, 150 points apart, and the margin below the last row equals the one above the first.
inline constexpr double pad_points = 120.0;
inline constexpr int pad_pixels = static_cast<int>(pad_points) * artwork_scale;

/// Points from the middle to the handle's centre at strength 100.
inline constexpr double full_strength_points =
    handle_reach_of(pad_points + pad_margin_points, pad_handle_points, pad_handle_frame_points);

struct pad_picture
{
    std::string name; ///< file name among the resources
    /// The colour at a place of the disc, code values 0..1: angle in degrees, 0 up and growing counter-clockwise;
    /// strength in percent, 0..100; x and y in points from the middle, y growing downwards.
    std::function<rgb_double(double angle, double strength, double x, double y)> colour;
};

/// Master, shadows, mids, highlights, sky, greenery, skin and film contrast. The pads of sky, greenery and skin show
/// what their anchor colour becomes with the handle at that place, film contrast's pad what a ramp from black to white
/// becomes; the wheels show the hues that they tint with.
std::vector<pad_picture> make_pad_pictures(engine_colours& engine);

/// pad_pixels x pad_pixels, rows from the top, straight alpha: a disc with an anti-aliased rim, transparent outside.
/// Outside the handle's reach the disc continues as at strength 100.
std::vector<argb_float> draw_pad(const pad_picture& pad);

} // namespace ov1

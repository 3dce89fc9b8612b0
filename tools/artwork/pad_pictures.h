// The pictures of the eight pads, made from what the engine does.
#pragma once

#include "shared/argb_float.h"
#include "tools/artwork/engine_colours.h"

#include <functional>
#include <string>
#include <vector>

namespace ov1
{

struct pad_picture
{
    std::string name; ///< of the resource
    /// The colour at a place of the disc: angle in degrees, 0 up and growing counter-clockwise; strength in percent,
    /// 0..100; x and y in points from the middle, y growing downwards.
    std::function<rgb_double(double angle, double strength, double x, double y)> colour;
};

/// Master, shadows, mids, highlights, sky, greenery, skin and film contrast. A look's pad shows what becomes of the
/// thing's own colour with the handle at that place, film contrast's what becomes of a ramp from black to white; the
/// wheels show the hues that they tint with.
std::vector<pad_picture> make_pad_pictures(engine_colours& engine);

/// pad_pixels x pad_pixels, rows from the top, straight alpha: a disc with an anti-aliased rim, clear outside. Beyond
/// the handle's reach the disc goes on as at strength 100.
std::vector<argb_float> draw_pad(const pad_picture& pad);

} // namespace ov1

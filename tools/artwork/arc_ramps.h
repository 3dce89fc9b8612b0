// The colours along the arcs beside the pads, made from what the engine does.
#pragma once

#include "tools/artwork/engine_colours.h"

namespace ov1
{

// Place is 0 at the arc's lower end, its control's least value, and 1 at the upper end. Code values, 0..1.

/// Neutral, dark to light: range, luminance and lightness.
rgb_double lightness_ramp(double place);

/// Grey to full colour: a warm colour under the global chroma of that place.
rgb_double chroma_ramp(engine_colours& engine, double place);

/// Skin under the brightness of that place.
rgb_double skin_brightness_ramp(engine_colours& engine, double place);

/// Grey to skin: skin that a push to paler takes away, and protection keeps.
rgb_double protection_ramp(engine_colours& engine, double place);

} // namespace ov1

// The colours along the arcs beside the pads, made from what the engine does.
#pragma once

#include "tools/artwork/engine_colours.h"

namespace ov1
{

// position is 0 at the arc's lower end, its parameter's least value, and 1 at the upper end. Colours are code values,
// 0..1.

/// Neutral, dark to light: for range, luminance and lightness.
rgb_double lightness_ramp(double position);

/// Grey to full colour: a warm colour graded with the global chroma of that position.
rgb_double chroma_ramp(engine_colours& engine, double position);

/// The skin anchor graded with the brightness of that position.
rgb_double skin_brightness_ramp(engine_colours& engine, double position);

/// Grey to skin: at the lower end a push to paler skin acts in full, at the upper end protection undoes it.
rgb_double protection_ramp(engine_colours& engine, double position);

} // namespace ov1

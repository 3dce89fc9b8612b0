// More or less colour in shadows, mids and highlights.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

// Each takes a colour in code values to what it becomes at full strength, within 0..1, at the same OKLab lightness and
// hue as far as sRGB has room. The zones overlap softly; one after another they act as one saturation for the picture.

/// Richer shadows: colours come out of the dark.
rgb_double saturation100_schatten(const rgb_double& code);
/// Shadows without colour.
rgb_double saturation_minus100_schatten(const rgb_double& code);
/// Richer mids.
rgb_double saturation100_mitten(const rgb_double& code);
/// Mids without colour.
rgb_double saturation_minus100_mitten(const rgb_double& code);
/// Richer highlights: colour in clouds, light skin and lamps.
rgb_double saturation100_lichter(const rgb_double& code);
/// Highlights without colour.
rgb_double saturation_minus100_lichter(const rgb_double& code);

} // namespace ov1

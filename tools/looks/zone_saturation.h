// More or less colour in shadows, mids and highlights.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

// Each returns a colour, in code values within 0..1, as it is at full strength, with the same OKLab lightness and hue
// as far as sRGB has room. The zones overlap softly: all three applied in turn act as one saturation for the whole
// picture.

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

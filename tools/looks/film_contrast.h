// The film contrast looks: tone curves with toe and shoulder.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

// Each returns a colour, in code values, as it is at full strength. Black, white and the hexcone hue do not change and
// greys stay grey: the curve acts on the largest and the smallest channel, and the middle one keeps its relative
// position between them. Opposite looks cancel, and the S-curve is the sum of the highlights and the shadows look.

/// Highlights north: the upper mids lifted, the ends kept; airy, without washing out.
rgb_double film_contrast_highlights_north(const rgb_double& code);
/// Flat and matte: toe raised, shoulder lowered.
rgb_double filmkontrast_minus100(const rgb_double& code);
/// Shadows south: the lower mids lowered; heavier, without crushing black.
rgb_double film_contrast_shadows_south(const rgb_double& code);
/// The S-curve of a print: punchy, with toe and shoulder.
rgb_double filmkontrast_100(const rgb_double& code);

} // namespace ov1

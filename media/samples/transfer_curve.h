// The curve between linear light and display code values.
#pragma once

namespace ov1::media
{

// Source: IEC 61966-2-1 (sRGB). Within 0..1 both read a table and are within 1e-7 of the formula, relative; beyond it
// the formula itself is used, mirrored at zero. A NaN stays one.

/// Linear light to a code value.
float srgb_encoded(float linear);

/// A code value to linear light.
float srgb_decoded(float code);

} // namespace ov1::media

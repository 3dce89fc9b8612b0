// The curve between linear light and display code values.
#pragma once

namespace ov1::media
{

// Source: IEC 61966-2-1 (sRGB). Within 0..1 both interpolate in a table, with a relative error of at most 1e-7; outside
// they compute the formula, mirrored at zero. A NaN stays a NaN.

/// Linear light to a code value.
float srgb_encoded(float linear);

/// A code value to linear light.
float srgb_decoded(float code);

} // namespace ov1::media

// A drawn landscape in which every control of the effect changes something.
#pragma once

#include "shared/argb_float.h"

namespace ov1
{

/// The colour at a point of the picture, as display-referred code values. x is 0 at the left edge and 1.5 at the right,
/// y is 0 at the top and 1 at the bottom. The picture shows a sky that is deeper at the top, clouds, ridges in haze, a
/// tree in autumn leaves, a lawn, and a card with ten skin tones and six greys.
argb_float landscape(float x, float y);

inline constexpr float landscape_aspect = 1.5f;

} // namespace ov1

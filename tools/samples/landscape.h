// A drawn landscape that gives every control of the effect something to act on.
#pragma once

#include "shared/argb_float.h"

namespace ov1
{

/// The colour at a place of the picture, display-referred code values. x runs from 0 at the left to 1.5 at the right,
/// y from 0 at the top to 1 at the bottom: a sky that deepens upwards, clouds, ridges in haze, a tree in autumn leaves,
/// a lawn, and a card with ten skin tones and six greys.
argb_float landscape(float x, float y);

inline constexpr float landscape_aspect = 1.5f;

} // namespace ov1

// Values clamped to their range, for numbers that come from outside and may be NaN.
#pragma once

#include "shared/argb_float.h"

namespace ov1
{

/// v clamped to 0..largest; a NaN and -0 give +0. Compilers turn loops over it into vector code.
/// `largest` must not be negative. No branches: it runs once per sample of a picture.
constexpr float clamped(float v, float largest = 1.0f)
{
    const float above = v > 0.0f ? v : 0.0f; // a NaN fails the comparison
    return above < largest ? above : largest;
}

/// All four channels clamped to 0..1.
constexpr argb_float clamped(const argb_float& c) { return {clamped(c.a), clamped(c.r), clamped(c.g), clamped(c.b)}; }

} // namespace ov1

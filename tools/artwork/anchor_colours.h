// The colours that represent sky, greenery and skin on the controls. Code values, 0..1.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

constexpr rgb_double colour_of_u8(int r, int g, int b) { return {r / 255.0, g / 255.0, b / 255.0}; }

// The ColorChecker's patches blue sky, foliage and light skin.
inline constexpr rgb_double sky_anchor = colour_of_u8(0x5b, 0x7a, 0x9c);
inline constexpr rgb_double greenery_anchor = colour_of_u8(0x5a, 0x6c, 0x40);
inline constexpr rgb_double skin_anchor = colour_of_u8(0xc7, 0x93, 0x81);

} // namespace ov1

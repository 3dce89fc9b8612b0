// Value noise: smooth random hills that are the same on every machine.
#pragma once

#include <cstdint>

namespace ov1
{

/// 0..1, smooth in x and y, one hill per unit of length on average. Different seeds give unrelated hills.
float noise(float x, float y, std::uint32_t seed);

/// The sum of octaves of noise, each twice as fine and half as high; 0..1.
float fractal_noise(float x, float y, int octaves, std::uint32_t seed);

/// 0 below from, 1 above to, an S between.
float smooth_step(float from, float to, float x);

} // namespace ov1

// Value noise: a smooth random function that is the same on every machine.
#pragma once

#include <cstdint>

namespace ov1
{

/// 0..1, smooth in x and y, about one maximum per unit of length. Different seeds give unrelated functions.
float noise(float x, float y, std::uint32_t seed);

/// The sum of octaves of noise, each with twice the frequency and half the amplitude of the one before; 0..1.
float fractal_noise(float x, float y, int octaves, std::uint32_t seed);

/// 0 below from, 1 above to, a cubic S-curve between them.
float smooth_step(float from, float to, float x);

} // namespace ov1

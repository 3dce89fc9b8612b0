#include "tools/samples/noise.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

/// Source of the mixing steps: MurmurHash3's finalizer, public domain.
/// A random value, 0..1, for a point of the lattice. Integer arithmetic: the same on every machine.
float lattice(std::int32_t x, std::int32_t y, std::uint32_t seed)
{
    std::uint32_t h = seed + 0x9E3779B9u * static_cast<std::uint32_t>(x) + 0x85EBCA6Bu * static_cast<std::uint32_t>(y);
    h = (h ^ h >> 16) * 0x85EBCA6Bu;
    h = (h ^ h >> 13) * 0xC2B2AE35u;
    return static_cast<float>((h ^ h >> 16) >> 8) / 16777215.0f;
}

float mix(float a, float b, float t) { return a + (b - a) * t; }

} // namespace

float smooth_step(float from, float to, float x)
{
    const float t = std::clamp((x - from) / (to - from), 0.0f, 1.0f);
    return t * t * (3.0f - 2.0f * t);
}

float noise(float x, float y, std::uint32_t seed)
{
    const float fx = std::floor(x), fy = std::floor(y);
    const auto ix = static_cast<std::int32_t>(fx), iy = static_cast<std::int32_t>(fy);
    const float tx = smooth_step(0.0f, 1.0f, x - fx), ty = smooth_step(0.0f, 1.0f, y - fy);
    return mix(mix(lattice(ix, iy, seed), lattice(ix + 1, iy, seed), tx),
               mix(lattice(ix, iy + 1, seed), lattice(ix + 1, iy + 1, seed), tx), ty);
}

float fractal_noise(float x, float y, int octaves, std::uint32_t seed)
{
    float sum = 0.0f, height = 1.0f, whole = 0.0f;
    for (int i = 0; i < octaves; ++i, x *= 2.0f, y *= 2.0f, height *= 0.5f)
    {
        // A seed for each octave, or all octaves would have the same values at the origin.
        sum += height * noise(x, y, seed + static_cast<std::uint32_t>(i));
        whole += height;
    }
    return sum / whole;
}

} // namespace ov1

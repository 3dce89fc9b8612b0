#include "tools/samples/memory_chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace ov1
{

namespace
{

/// Nominal sRGB values of the classic chart, row by row.
/// Source: McCamy, Marcus, Davidson 1976, as published in sRGB by the chart's makers before November 2014.
constexpr std::array<std::uint32_t, 24> patches{0x735244, 0xc29682, 0x627a9d, 0x576c43, 0x8580b1, 0x67bdaa,
                                                0xd67e2c, 0x505ba6, 0xc15a63, 0x5e3c6c, 0x9dbc40, 0xe0a32e,
                                                0x383d96, 0x469449, 0xaf363c, 0xe7c71f, 0xbb5695, 0x0885a1,
                                                0xf3f3f2, 0xc8c8c8, 0xa0a0a0, 0x7a7a79, 0x555555, 0x343434};

/// Three colours in sRGB, 0xRRGGBB, blended linearly in code values.
struct ramp
{
    std::uint32_t from, middle, to;
};

constexpr std::array<ramp, 5> ramps{{
    {0xd6e4ee, 0x7fa9d1, 0x27508f}, // pale to deep sky
    {0x5b8fc4, 0xaecbe3, 0xf4f6f8}, // sky to cloud
    {0xb9ad62, 0x6f8f3b, 0x23521f}, // dry to lush grass
    {0xf2d9c7, 0xb98260, 0x3b2419}, // light to dark skin
    {0x000000, 0x808080, 0xffffff}, // black to white
}};

argb_float from_hex(std::uint32_t hex)
{
    return {1.0f, static_cast<float>(hex >> 16 & 255) / 255, static_cast<float>(hex >> 8 & 255) / 255,
            static_cast<float>(hex & 255) / 255};
}

argb_float mix(const argb_float& a, const argb_float& b, float t)
{
    return {1.0f, a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t};
}

} // namespace

argb_float memory_chart(float x, float y)
{
    constexpr float patches_height = 0.62f, gap = 0.04f;
    constexpr argb_float ground{1.0f, 0.16f, 0.16f, 0.16f};
    if (y < patches_height)
    {
        const float column = x * 6, row = y / patches_height * 4;
        const float u = column - std::floor(column), v = row - std::floor(row);
        if (std::min({u, v, 1 - u, 1 - v}) < gap)
            return ground;
        return from_hex(patches[static_cast<std::size_t>(row) * 6 + static_cast<std::size_t>(std::min(column, 5.0f))]);
    }
    const float row = (y - patches_height) / (1 - patches_height) * ramps.size();
    const float v = row - std::floor(row), u = (x - gap / 6) / (1 - gap / 3);
    if (std::min(v, 1 - v) < gap || u < 0 || u > 1)
        return ground;
    const ramp& r = ramps[std::min(static_cast<std::size_t>(row), ramps.size() - 1)];
    return u < 0.5f ? mix(from_hex(r.from), from_hex(r.middle), u * 2)
                    : mix(from_hex(r.middle), from_hex(r.to), u * 2 - 1);
}

} // namespace ov1

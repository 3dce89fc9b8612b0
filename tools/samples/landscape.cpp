#include "tools/samples/landscape.h"

#include "tools/samples/noise.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace ov1
{

namespace
{

constexpr float horizon = 0.60f;

constexpr argb_float rgb(float r, float g, float b) { return {1.0f, r, g, b}; }

constexpr argb_float from_hex(std::uint32_t hex)
{
    return rgb(static_cast<float>(hex >> 16 & 255) / 255, static_cast<float>(hex >> 8 & 255) / 255,
               static_cast<float>(hex & 255) / 255);
}

argb_float mix(const argb_float& a, const argb_float& b, float t)
{
    return rgb(a.r + (b.r - a.r) * t, a.g + (b.g - a.g) * t, a.b + (b.b - a.b) * t);
}

/// A colour in more or less light; not limited.
argb_float lit(const argb_float& c, float by) { return rgb(c.r * by, c.g * by, c.b * by); }

argb_float sky(float x, float y)
{
    const float height = std::clamp(1.0f - y / horizon, 0.0f, 1.0f);
    const argb_float haze = rgb(0.84f, 0.88f, 0.91f), middle = rgb(0.55f, 0.71f, 0.87f),
                     deep = rgb(0.22f, 0.42f, 0.70f);
    argb_float c = mix(mix(haze, middle, smooth_step(0.0f, 0.5f, height)), deep, smooth_step(0.35f, 1.0f, height));

    // Clouds are flatter near the horizon; their lower sides are shaded.
    const float stretch = 2.6f + 6.0f * (1.0f - height);
    const float body = fractal_noise(x * 2.6f + 0.7f, y * stretch, 6, 11);
    const float above = fractal_noise(x * 2.6f + 0.7f, (y - 0.02f) * stretch, 6, 11);
    const float cover = smooth_step(0.52f, 0.70f, body) * smooth_step(0.02f, 0.25f, height);
    const float shade = std::clamp(0.94f + 1.6f * (body - above), 0.72f, 1.0f);
    return mix(c, rgb(0.97f * shade, 0.97f * shade, 0.985f * shade), cover * 0.95f);
}

/// The height of a ridge above the horizon at x.
float ridge_height(float x, int number)
{
    const auto n = static_cast<float>(number);
    return horizon - 0.13f + 0.045f * n -
           0.10f * (fractal_noise(x * (1.6f + 0.8f * n) + 9.0f * n, 0.5f, 5, 40u) - 0.5f);
}

/// Three ridges in front of a colour, the farthest one first and palest.
argb_float ridges(float x, float y, argb_float c)
{
    const argb_float tints[] = {rgb(0.56f, 0.65f, 0.74f), rgb(0.42f, 0.53f, 0.53f), rgb(0.30f, 0.40f, 0.27f)};
    for (int i = 0; i < 3; ++i)
    {
        const float edge = ridge_height(x, i);
        const float texture =
            0.92f + 0.16f * fractal_noise(x * 60.0f, y * 90.0f, 3, 60u + static_cast<std::uint32_t>(i));
        const float lift = 1.0f + 0.25f * smooth_step(edge, edge + 0.15f, y);
        c = mix(c, lit(tints[i], texture * lift), smooth_step(edge, edge + 0.003f, y));
    }
    return c;
}

/// The ground below the horizon, with patches of dry grass.
argb_float lawn(float x, float y)
{
    const float near = std::clamp((y - horizon) / (1.0f - horizon), 0.0f, 1.0f);
    // Rows become narrower with distance; blades are vertical.
    const float depth = 1.0f / (0.08f + near);
    const float patches = fractal_noise(x * 3.0f * depth * 0.6f, depth * 3.0f, 4, 80);
    const float blades = fractal_noise(x * 260.0f / (0.35f + near), y * 70.0f / (0.35f + near), 2, 90);
    const argb_float dry = rgb(0.55f, 0.57f, 0.27f), fresh = rgb(0.33f, 0.50f, 0.17f), dark = rgb(0.16f, 0.28f, 0.09f);
    const argb_float c = mix(mix(fresh, dry, smooth_step(0.45f, 0.75f, patches)), dark, 0.25f + 0.35f * near * blades);
    return lit(c, 0.82f + 0.36f * blades);
}

/// The tree in front of a colour.
argb_float tree(float x, float y, const argb_float& behind)
{
    constexpr float centre = 0.34f, crown = 0.40f, ground = 0.735f;
    argb_float c = behind;
    const float lean = 0.02f * std::sin(y * 9.0f);
    const float half_width = 0.014f + 0.012f * smooth_step(crown, ground, y);
    const float off = std::abs(x - centre - lean);
    if (y > crown && y < ground)
    {
        const float bark = fractal_noise(x * 190.0f, y * 22.0f, 3, 120);
        const float round = 0.55f + 0.55f * std::clamp((x - centre - lean) / half_width * 0.5f + 0.5f, 0.0f, 1.0f);
        c = mix(c, lit(rgb(0.40f, 0.28f, 0.19f), round * (0.7f + 0.6f * bark)),
                smooth_step(half_width, half_width - 0.003f, off));
    }
    const float dx = (x - centre) / 0.19f, dy = (y - crown) / 0.20f;
    const float leaves = fractal_noise(x * 14.0f, y * 14.0f, 5, 130);
    const float cover = smooth_step(0.02f, 0.12f, 1.0f - std::sqrt(dx * dx + dy * dy) + 0.9f * (leaves - 0.55f));
    const float clump = fractal_noise(x * 46.0f, y * 46.0f, 3, 140);
    const argb_float leaf =
        mix(mix(rgb(0.50f, 0.20f, 0.08f), rgb(0.83f, 0.50f, 0.13f), smooth_step(0.3f, 0.65f, clump)),
            rgb(0.88f, 0.72f, 0.25f), smooth_step(0.58f, 0.8f, clump));
    return mix(c, lit(leaf, 0.62f + 0.30f * (1.0f - y) + 0.35f * (leaves - 0.5f)), cover);
}

/// Monk skin tones 1 to 10 above, six greys below, on a white card.
/// Source: Ellis Monk, the Monk Skin Tone Scale, 2022.
argb_float card(float u, float v)
{
    constexpr std::array<std::uint32_t, 10> tones{0xf6ede4, 0xf3e7db, 0xf7ead0, 0xeadaba, 0xd7bd96,
                                                  0xa07e56, 0x825c43, 0x604134, 0x3a312a, 0x292420};
    constexpr std::array<std::uint32_t, 6> greys{0xf3f3f3, 0xc8c8c8, 0xa0a0a0, 0x7a7a7a, 0x555555, 0x343434};
    constexpr float margin = 0.035f;
    const bool greys_row = v > 2.0f / 3.0f;
    const auto columns = static_cast<float>(greys_row ? greys.size() : tones.size() / 2);
    const float column = u * columns, row = v * 3.0f;
    const float in_column = column - std::floor(column), in_row = row - std::floor(row);
    if (in_column < margin * columns / 3 || in_column > 1 - margin * columns / 3 || in_row < margin * 3 ||
        in_row > 1 - margin * 3)
        return rgb(0.93f, 0.93f, 0.92f);
    const auto i = static_cast<std::size_t>(column);
    return from_hex(greys_row ? greys[i] : tones[i + (row > 1.0f ? 5 : 0)]);
}

} // namespace

argb_float landscape(float x, float y)
{
    constexpr float left = 0.93f, top = 0.66f, width = 0.46f, height = 0.27f;
    const float u = (x - left) / width, v = (y - top) / height;
    if (u > 0.0f && u < 1.0f && v > 0.0f && v < 1.0f)
        return card(u, v);
    const float edge = horizon + 0.012f * (fractal_noise(x * 3.0f, 0.5f, 4, 70) - 0.5f);
    argb_float c = y < edge ? ridges(x, y, sky(x, y)) : lawn(x, y);
    // The shadows of the card and the tree.
    const float beside = std::max(std::abs(u - 0.53f) - 0.5f, 0.0f) * width;
    const float below = std::max(std::abs(v - 0.55f) - 0.5f, 0.0f) * height;
    c = lit(c, 1.0f - 0.45f * smooth_step(0.035f, 0.0f, std::hypot(beside, below)));
    const float shadow = std::hypot((x - 0.46f) / 0.26f, (y - 0.755f) / 0.035f);
    c = y > edge ? lit(c, 1.0f - 0.4f * smooth_step(1.0f, 0.55f, shadow)) : c;
    return tree(x, y, c);
}

} // namespace ov1

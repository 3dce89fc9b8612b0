#include "frames.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace ov1::bench
{

namespace
{

/// Nearly uniform, 0..1. Distributions of the standard library differ from one library to another.
float next(std::minstd_rand& engine) { return static_cast<float>(engine()) / static_cast<float>(engine.max()); }

/// A wave along an axis, -1..1.
std::vector<float> wave(std::size_t length, float periods, float phase)
{
    std::vector<float> values(length);
    for (std::size_t i = 0; i < length; ++i)
        values[i] = std::sin(6.2831853f * (periods * static_cast<float>(i) / static_cast<float>(length) + phase));
    return values;
}

/// One channel: gradients over the whole picture and a texture of some pixels.
void paint(frame& picture, float argb_float::* channel, float phase)
{
    const auto slope_x = wave(picture.width, 1.3f, phase), slope_y = wave(picture.height, 0.8f, phase * 2);
    const auto texture_x = wave(picture.width, static_cast<float>(picture.width) / 23.0f, phase);
    const auto texture_y = wave(picture.height, static_cast<float>(picture.height) / 17.0f, 1 - phase);
    for (std::size_t y = 0; y < picture.height; ++y)
        for (std::size_t x = 0; x < picture.width; ++x)
            picture.pixels[y * picture.width + x].*channel =
                0.5f + 0.3f * slope_x[x] * slope_y[y] + 0.12f * slope_y[y] + 0.04f * texture_x[x] * texture_y[y];
}

} // namespace

frame make_frame(content what, std::size_t width, std::size_t height)
{
    frame picture{width, height, std::vector<argb_float>(width * height, argb_float{1, 0, 0, 0})};
    constexpr std::pair<float argb_float::*, float> channels[] = {
        {&argb_float::r, 0.05f}, {&argb_float::g, 0.21f}, {&argb_float::b, 0.38f}};
    if (what == content::natural)
        for (const auto& [channel, phase] : channels)
            paint(picture, channel, phase);
    const float grain = what == content::natural ? 0.03f : 1.0f;
    const float middle = what == content::natural ? 0.5f : 0.0f;
    // The standard fixes its numbers: the same grain everywhere.
    std::minstd_rand engine(3840);
    for (argb_float& pixel : picture.pixels)
        for (const auto& [channel, phase] : channels)
            pixel.*channel = std::clamp(pixel.*channel + grain * (next(engine) - middle), 0.0f, 1.0f);
    return picture;
}

} // namespace ov1::bench

#include "standalone/jobs/preview_picture.h"

#include "media/samples/transfer_curve.h"
#include "shared/argb_float.h"
#include "shared/clamp.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

constexpr std::size_t longest_preview_side = 1600;
constexpr std::uint32_t chart_width = 1600;
constexpr std::uint32_t chart_height = 900;
constexpr std::uint32_t chart_bands = 6;

/// The fully saturated colour of a hue, 0..1 around the circle.
argb_float hue_at(float place)
{
    // A trapezoid over six segments of the circle: 1 for two segments, 0 for two, ramps between. The offset shifts it
    // from red to green and blue.
    const auto channel = [&](float offset)
    { return clamped(std::abs(std::fmod(place * 6.0f + offset, 6.0f) - 3.0f) - 1.0f); };
    return {1.0f, channel(0.0f), channel(4.0f), channel(2.0f)};
}

/// x runs from 0 to 1 across the chart. Along each band the hue runs once around the circle, less saturated from band
/// to band; the last band is a grey ramp.
argb_float chart_colour(float x, std::uint32_t band)
{
    if (band + 1 == chart_bands)
        return {1.0f, x, x, x};
    const argb_float hue = hue_at(x);
    const float lightness = 0.9f - 0.15f * static_cast<float>(band);
    const float chroma = 0.85f - 0.12f * static_cast<float>(band);
    const auto mixed = [&](float v) { return lightness * (1.0f - chroma + chroma * v); };
    return {1.0f, mixed(hue.r), mixed(hue.g), mixed(hue.b)};
}

} // namespace

media::reduced_picture make_gradable_picture(const media::still_reader& source, std::size_t max_width,
                                             std::size_t max_height)
{
    auto picture = media::reduce(source, max_width, max_height);
    const bool premultiplied = source.info().alpha == media::alpha_kind::premultiplied;
    const bool linear = source.info().transfer == media::transfer::linear;
    for (argb_float& p : picture.pixels)
    {
        // Before encoding: the curve is not linear, so it must see the straight colour. Where alpha is 0 there is no
        // colour to restore.
        if (premultiplied && p.a > 0.0f)
            p = {p.a, p.r / p.a, p.g / p.a, p.b / p.a};
        if (linear)
            p = {p.a, media::srgb_encoded(p.r), media::srgb_encoded(p.g), media::srgb_encoded(p.b)};
        // Last, since the division and the curve can leave 0..1; this also turns a NaN into 0.
        p = clamped(p);
    }
    return picture;
}

std::shared_ptr<image> make_preview_image(const media::still_reader& source)
{
    const auto picture = make_gradable_picture(source, longest_preview_side, longest_preview_side);
    auto made =
        std::make_shared<image>(static_cast<std::uint32_t>(picture.width), static_cast<std::uint32_t>(picture.height),
                                image::pixel_type::argb_f32, image::origin::top_left);
    std::copy(picture.pixels.begin(), picture.pixels.end(), reinterpret_cast<argb_float*>(made->pixels()));
    return made;
}

std::shared_ptr<image> make_image_like(const image& other)
{
    return std::make_shared<image>(other.get_width(), other.get_height(), other.get_pixel_type(), other.get_origin());
}

std::shared_ptr<image> make_test_chart()
{
    auto chart =
        std::make_shared<image>(chart_width, chart_height, image::pixel_type::argb_f32, image::origin::top_left);
    for (std::uint32_t y = 0; y < chart_height; ++y)
    {
        auto* row = reinterpret_cast<argb_float*>(chart->row(y));
        for (std::uint32_t x = 0; x < chart_width; ++x)
            row[x] = chart_colour(static_cast<float>(x) / (chart_width - 1), y * chart_bands / chart_height);
    }
    return chart;
}

} // namespace ov1

#include "tools/artwork/pad_pictures.h"

#include "effect/zone.h"
#include "tools/artwork/anchor_colours.h"
#include "tools/artwork/pad_response.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <numbers>

namespace ov1
{

namespace
{

pad_picture look_pad(engine_colours& engine, const char* name, parameter_index angle, parameter_index strength,
                     const rgb_double& anchor)
{
    const auto response = std::make_shared<pad_response>(engine, angle, strength, std::vector{anchor});
    return {name, [response](double a, double s, double, double) { return response->at(0, a, s); }};
}

/// A grey ramp along x, dark to light over 15 points and back. It stops short of black and white, which film contrast
/// does not change.
double grey_ramp(double x)
{
    constexpr double half_period_points = 15.0;
    constexpr double darkest = 0.15, lightest = 0.85;
    return std::lerp(darkest, lightest, std::abs(std::remainder(x / half_period_points, 2.0)));
}

pad_picture film_pad(engine_colours& engine)
{
    // The table is linear between its grid points, so these greys give all others.
    std::vector<rgb_double> greys;
    for (std::size_t i = 0; i < lut_edge; ++i)
    {
        const double v = static_cast<double>(i) / (lut_edge - 1);
        greys.push_back({v, v, v});
    }
    const auto response = std::make_shared<pad_response>(engine, parameter_index::film_contrast_angle,
                                                         parameter_index::film_contrast_strength, greys);
    const auto colour = [response](double angle, double strength, double x, double)
    {
        const double place = grey_ramp(x) * (lut_edge - 1);
        const auto i = std::min(static_cast<std::size_t>(place), lut_edge - 2);
        const double fraction = place - static_cast<double>(i);
        const double level =
            std::lerp(response->at(i, angle, strength).g, response->at(i + 1, angle, strength).g, fraction);
        return rgb_double{level, level, level};
    };
    return {"film_contrast_xy_background.png", colour};
}

/// Chroma grows linearly from the centre to rim_chroma; both in percent.
pad_picture wheel_pad(const char* name, double lightness, double rim_chroma)
{
    const auto milli = [](double v) { return static_cast<std::int32_t>(std::lround(v * 1000.0)); };
    const auto colour = [=](double angle, double strength, double, double)
    { return rgb_of({hue_milli_of(angle), milli(rim_chroma * strength / 100.0), milli(lightness)}); };
    return {name, colour};
}

pad_picture zone_pad(const char* name, zone z)
{
    return wheel_pad(name, constants_of(z).lightness_percent, constants_of(z).chroma_scale);
}

argb_float pixel(const pad_picture& pad, double x, double y)
{
    // Half a pixel less than the picture, so that the anti-aliased rim fits in.
    constexpr double radius = (pad_pixels - 1) / 2.0;
    const double distance = std::hypot(x, y);
    const double cover = std::clamp(radius + 0.5 - distance, 0.0, 1.0);
    if (cover == 0.0)
        return {};
    // 0 is up, and angles grow counter-clockwise, as pad_geometry has them.
    const double angle = std::atan2(-x, -y) * 180.0 / std::numbers::pi;
    const double strength = std::min(distance / artwork_scale / full_strength_points, 1.0) * 100.0;
    const rgb_double c =
        pad.colour(angle < 0.0 ? angle + 360.0 : angle, strength, x / artwork_scale, y / artwork_scale);
    return {static_cast<float>(cover), static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b)};
}

} // namespace

std::vector<pad_picture> make_pad_pictures(engine_colours& engine)
{
    using index = parameter_index;
    constexpr double master_chroma = 100.0; // the most colourful: this wheel acts on all tones
    return {
        wheel_pad("master_xy_background.png", 50.0, master_chroma),
        zone_pad("shadows_xy_background.png", zone::shadows),
        zone_pad("mids_xy_background.png", zone::mids),
        zone_pad("highlights_xy_background.png", zone::highlights),
        look_pad(engine, "sky_xy_background.png", index::sky_angle, index::sky_strength, sky_anchor),
        look_pad(engine, "greenery_xy_background.png", index::greenery_angle, index::greenery_strength,
                 greenery_anchor),
        look_pad(engine, "skin_xy_background.png", index::skin_angle, index::skin_tone_strength, skin_anchor),
        film_pad(engine),
    };
}

std::vector<argb_float> draw_pad(const pad_picture& pad)
{
    std::vector<argb_float> pixels;
    constexpr double middle = pad_pixels / 2.0;
    for (int y = 0; y < pad_pixels; ++y)
        for (int x = 0; x < pad_pixels; ++x)
            pixels.push_back(pixel(pad, x + 0.5 - middle, y + 0.5 - middle));
    return pixels;
}

} // namespace ov1

#include "effect/build/build_plan.h"

#include "effect/lut/angle_weights.h"
#include "effect/lut/integer_hsl.h"
#include "effect/lut/skin_square.h"
#include "effect/zone_colour.h"

#include <cmath>

namespace ov1
{

namespace
{

constexpr double u16_full = 65535.0;

/// A colour in the unit of lut_point.
argb_float point_colour(const rgb_double& c)
{
    return {u16_max, static_cast<float>(c.r * u16_full), static_cast<float>(c.g * u16_full),
            static_cast<float>(c.b * u16_full)};
}

/// The grey of a lightness, with the rounding and the scale of the integer conversion.
argb_float point_grey(double lightness_percent)
{
    const double level = channel_of_milli(limited_milli(lightness_percent * 1000.0));
    return point_colour({level, level, level});
}

/// Moves middle grey towards the master wheel's colour.
lut_point master_point(const grade_settings& settings)
{
    constexpr double chroma_at_rim = 50.0; // percent
    constexpr float radius = 140.0f;       // of the point, 1..256
    constexpr std::int32_t half_lightness = 50'000;

    const double saturation = settings.value(parameter_index::master_chroma) * chroma_at_rim /
                              settings.max(parameter_index::master_chroma) * 1000.0;
    const hsl_milli wanted{hue_milli_of(settings.value(parameter_index::master_hue)), limited_milli(saturation) / 2,
                           half_lightness};
    return {point_grey(50.0), point_colour(rgb_of(wanted)), radius, 0.0f};
}

/// Moves the zone's grey towards its wheel's colour, with the reach of its smoothness.
lut_point zone_point(const grade_settings& settings, zone z)
{
    constexpr double smoothness_range = 20.0; // of the radius, to both sides
    const parameter_index smoothness = zone_parameter(z, zone_control::smoothness);
    const double radius =
        constants_of(z).radius + settings.value(smoothness) * smoothness_range / settings.max(smoothness);

    const auto [chroma, luma] = chroma_luma_of(settings, z);
    const hsl_milli wanted{hue_milli_of(settings.value(zone_parameter(z, zone_control::hue))),
                           limited_milli(chroma * 1000.0), limited_milli(luma * 1000.0)};
    return {point_grey(base_luma(settings, z)), point_colour(rgb_of(wanted)), static_cast<float>(radius), 0.0f};
}

/// Appends the tables of a pad's directions that have a weight at the angle.
void add_look(const veridial_luts::directions& looks, double strength_percent, double angle,
              std::vector<table_share>& shares)
{
    const auto weights = angle_weights(angle);
    for (std::size_t i = 0; i < weights.size(); ++i)
        if (weights[i] != 0.0)
            shares.push_back({looks[i], static_cast<float>(strength_percent * weights[i] * 0.01)});
}

/// The pad's border point, scaled by its strength: v is negative towards yellowish, the push positive.
skin_push skin_push_of(const grade_settings& settings)
{
    const skin_square place = skin_square_of(settings.value(parameter_index::skin_angle));
    const double strength = settings.value(parameter_index::skin_tone_strength);
    // Truncated to tenths, so the amounts move in steps: stored grades depend on it.
    const auto tenths = [](double v) { return static_cast<double>(static_cast<int>(v * 10.0)); };
    return {settings.value(parameter_index::protect_skin_tones) * 0.01, strength * tenths(place.u) * 0.001 * 0.01,
            strength * tenths(place.v) * -0.001 * 0.01, settings.value(parameter_index::skin_tone_brightness) * 0.01};
}

/// A look of strength 0 is left out: adding it would change nothing and take time.
std::vector<table_share> sky_and_greenery_of(const grade_settings& settings, const veridial_luts& looks)
{
    const double sky = settings.value(parameter_index::sky_strength);
    const double greenery = settings.value(parameter_index::greenery_strength);
    std::vector<table_share> shares;
    if (sky != 0.0)
        add_look(looks.sky(), sky, settings.value(parameter_index::sky_angle), shares);
    if (greenery != 0.0)
        add_look(looks.greenery(), greenery, settings.value(parameter_index::greenery_angle), shares);
    return shares;
}

/// The sign chooses the table of a zone, the magnitude is its share.
std::vector<table_share> saturation_of(const grade_settings& settings, const veridial_luts& looks)
{
    std::vector<table_share> shares;
    for (const zone z : all_zones)
    {
        const double v = settings.value(zone_parameter(z, zone_control::saturation));
        if (v != 0.0)
            shares.push_back({&looks.saturation(z, v > 0.0), static_cast<float>(std::abs(v) * 0.01)});
    }
    return shares;
}

} // namespace

build_plan plan_build(const grade_settings& settings, const veridial_luts& looks)
{
    build_plan plan;
    plan.bypass = settings.bypass();
    plan.wheels.push_back(master_point(settings));
    for (const zone z : all_zones)
        plan.wheels.push_back(zone_point(settings, z));
    plan.sky_and_greenery = sky_and_greenery_of(settings, looks);
    plan.skin = skin_push_of(settings);
    plan.chroma_percent = settings.value(parameter_index::global_chroma);
    plan.luminance_percent = settings.value(parameter_index::global_luminance);
    plan.saturation = saturation_of(settings, looks);
    // Not left out at strength 0: adding it still limits the entries to 0..1.
    add_look(looks.film_contrast(), settings.value(parameter_index::film_contrast_strength),
             settings.value(parameter_index::film_contrast_angle), plan.film_contrast);
    return plan;
}

} // namespace ov1

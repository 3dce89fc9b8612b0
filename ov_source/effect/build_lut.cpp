#include "effect/build_lut.h"

#include "effect/angle_weights.h"
#include "effect/integer_hsl.h"
#include "effect/lut_utils.h"
#include "effect/skin_data.h"
#include "effect/skin_square.h"
#include "effect/skin_tones.h"
#include "effect/zone_colour.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace ov1
{

namespace
{

using table17 = lut_argb<lut_edge>;

constexpr double u16_full = 65535.0;

argb_float point_colour(const rgb_double& c)
{
    return {u16_max, static_cast<float>(c.r * u16_full), static_cast<float>(c.g * u16_full),
            static_cast<float>(c.b * u16_full)};
}

argb_float point_grey(double lightness_percent)
{
    const double level = channel_of_milli(limited_milli(lightness_percent * 1000.0));
    return point_colour({level, level, level});
}

lut_point master_point(const grade_settings& settings)
{
    constexpr double chroma_reach = 50.0; // percent of saturation at the wheel's rim
    constexpr float reach = 140.0f;
    constexpr std::int32_t half_lightness = 50'000;

    const double saturation = settings.value(parameter_index::master_chroma) * chroma_reach /
                              settings.max(parameter_index::master_chroma) * 1000.0;
    const hsl_milli wanted{hue_milli_of(settings.value(parameter_index::master_hue)), limited_milli(saturation) / 2,
                           half_lightness};
    return {point_grey(50.0), point_colour(rgb_of(wanted)), reach, 0.0f};
}

lut_point zone_point(const grade_settings& settings, zone z)
{
    constexpr double smoothness_reach = 20.0;
    const parameter_index smoothness = zone_parameter(z, zone_control::smoothness);
    const double reach =
        constants_of(z).reach + settings.value(smoothness) * smoothness_reach / settings.max(smoothness);

    const auto [chroma, luma] = chroma_luma_of(settings, z);
    const hsl_milli wanted{hue_milli_of(settings.value(zone_parameter(z, zone_control::hue))),
                           limited_milli(chroma * 1000.0), limited_milli(luma * 1000.0)};
    return {point_grey(base_luma(settings, z)), point_colour(rgb_of(wanted)), static_cast<float>(reach), 0.0f};
}

void bend_to_wheels(const grade_settings& settings, lut<lut_edge>& table)
{
    std::vector<lut_point> points{master_point(settings)};
    for (const zone z : all_zones)
        points.push_back(zone_point(settings, z));
    table.update(std::move(points));
}

/// Adds a pad's four directions, each by its weight at the angle.
void add_look(table17& table, const veridial_luts::directions& looks, double strength_percent, double angle, bool limit)
{
    const auto weights = angle_weights(angle);
    for (std::size_t i = 0; i < weights.size(); ++i)
        if (weights[i] != 0.0)
            lut_utils::add(table, *looks[i], static_cast<float>(strength_percent * weights[i] * 0.01), limit);
}

void add_sky_and_greenery(const grade_settings& settings, const veridial_luts& looks, table17& table)
{
    const double sky = settings.value(parameter_index::sky_strength);
    const double greenery = settings.value(parameter_index::greenery_strength);
    table17 working;
    if (sky != 0.0)
        add_look(working, looks.sky(), sky, settings.value(parameter_index::sky_angle), false);
    if (greenery != 0.0)
        add_look(working, looks.greenery(), greenery, settings.value(parameter_index::greenery_angle), false);
    lut_utils::add(table, working, 1.0f, true);
}

void push_skin(const grade_settings& settings, const skin_tables& skin, table17& table)
{
    const skin_square place = skin_square_of(settings.value(parameter_index::skin_angle));
    const double strength = settings.value(parameter_index::skin_tone_strength);
    const auto tenths = [](double v) { return static_cast<double>(static_cast<int>(v * 10.0)); };
    lut_utils::modify_skin_tones(
        table, settings.value(parameter_index::protect_skin_tones) * 0.01, strength * tenths(place.u) * 0.001 * 0.01,
        strength * tenths(place.v) * -0.001 * 0.01, skin.yellowish, skin.reddened,
        settings.value(parameter_index::skin_tone_brightness) * 0.01, skin.lighter, skin.darker);
}

/// Both in percent, added to what the entry has.
argb_float with_chroma_and_luminance(const argb_float& entry, double chroma_percent, double luminance_percent)
{
    const rgb_double u8{entry.r * 255.0, entry.g * 255.0, entry.b * 255.0};
    const double max = std::max({u8.r, u8.g, u8.b});
    const double min = std::min({u8.r, u8.g, u8.b});
    const double chroma = (max - min) * percent_per_u8;
    const rgb_double to = rgb_of({static_cast<std::int32_t>(hexcone_hue(u8)),
                                  limited_milli((chroma + chroma_percent / 100.0 * chroma) * 1000.0),
                                  limited_milli(((max + min) * half_sum_percent_per_u8 + luminance_percent) * 1000.0)});
    return {entry.a, static_cast<float>(to.r), static_cast<float>(to.g), static_cast<float>(to.b)};
}

void set_global_chroma_and_luminance(const grade_settings& settings, table17& table)
{
    const double chroma = settings.value(parameter_index::global_chroma);
    const double luminance = settings.value(parameter_index::global_luminance);
    for (argb_float& entry : table.get_entries())
        entry = with_chroma_and_luminance(entry, chroma, luminance);
}

void saturate_zones(const grade_settings& settings, const veridial_luts& looks, table17& table)
{
    for (const zone z : all_zones)
    {
        const double v = settings.value(zone_parameter(z, zone_control::saturation));
        if (v != 0.0)
            lut_utils::apply(table, looks.saturation(z, v > 0.0), static_cast<float>(std::abs(v) * 0.01));
    }
}

} // namespace

skin_tables::skin_tables()
    : lighter(table17::from_std_array(skintone_lut_haut_heller_data))
    , darker(table17::from_std_array(skintone_lut_haut_dunkler_data))
    , yellowish(table17::from_std_array(skintone_lut_gelbsucht_data))
    , reddened(table17::from_std_array(skintone_lut_sonnenbrand_data))
{
}

void build_lut(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
               lut<lut_edge>& table)
{
    table.init();
    if (settings.bypass())
        return;
    bend_to_wheels(settings, table);
    add_sky_and_greenery(settings, looks, table);
    push_skin(settings, skin, table);
    set_global_chroma_and_luminance(settings, table);
    saturate_zones(settings, looks, table);
    add_look(table, looks.film_contrast(), settings.value(parameter_index::film_contrast_strength),
             settings.value(parameter_index::film_contrast_angle), true);
}

} // namespace ov1

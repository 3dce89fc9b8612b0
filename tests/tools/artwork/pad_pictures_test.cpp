// Compares the pads' pictures, as the build wrote them, with the engine's output.
#include "effect/build/build_lut.h"
#include "effect/zone.h"
#include "support/picture_file.h"
#include "tools/artwork/anchor_colours.h"
#include "tools/artwork/arc_ramps.h"
#include "tools/artwork/pad_pictures.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace ov1
{
namespace
{

using index = parameter_index;

/// A pad's picture, read at positions of the handle.
class pad_file : public picture_file
{
public:
    explicit pad_file(const std::string& name)
        : picture_file(name)
    {
        EXPECT_EQ(width, pad_pixels);
        EXPECT_EQ(height, pad_pixels);
    }

    /// The pixel under the middle of the handle.
    argb_float at(double angle, double strength) const
    {
        const double radius = full_strength_points * artwork_scale * strength / 100.0;
        const double turn = angle * std::numbers::pi / 180.0;
        const auto place = [](double v) { return static_cast<int>(std::floor(pad_pixels / 2.0 + v)); };
        return at_pixel(place(-radius * std::sin(turn)), place(-radius * std::cos(turn)));
    }
};

argb_float graded(const rgb_double& c, std::initializer_list<std::pair<index, double>> values)
{
    grade_settings settings;
    for (const auto& [i, v] : values)
        settings.settings[static_cast<std::size_t>(i)].value = static_cast<float>(v);
    const veridial_luts looks;
    lut_argb<lut_edge> table;
    build_lut(settings, looks, skin_tables(), table);
    return table.lookup({1, static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b)});
}

double difference(const argb_float& p, const argb_float& q)
{
    return std::max({std::abs(p.r - q.r), std::abs(p.g - q.g), std::abs(p.b - q.b)});
}

TEST(pad_pictures, a_look_pad_shows_what_the_engine_does_with_the_handle_there)
{
    const struct
    {
        const char* name;
        index angle, strength;
        rgb_double anchor;
    } pads[] = {
        {"sky_xy_background.png", index::sky_angle, index::sky_strength, sky_anchor},
        {"greenery_xy_background.png", index::greenery_angle, index::greenery_strength, greenery_anchor},
        {"skin_xy_background.png", index::skin_angle, index::skin_tone_strength, skin_anchor},
    };
    for (const auto& pad : pads)
    {
        SCOPED_TRACE(pad.name);
        const pad_file file(pad.name);
        for (const double angle : {0.0, 90.0, 180.0, 270.0, 45.0, 200.0, 345.0})
            for (const double strength : {100.0, 55.0})
            {
                SCOPED_TRACE(angle);
                const argb_float wanted = graded(pad.anchor, {{pad.angle, angle}, {pad.strength, strength}});
                // Half a code, and what a colour changes within the half pixel to its middle.
                EXPECT_LT(difference(file.at(angle, strength), wanted), 2.5 / 255.0);
            }
        for (const double angle : {0.0, 90.0, 180.0, 270.0})
            EXPECT_GT(difference(file.at(angle, 100), file.at(angle, 0)), 5.0 / 255.0) << "no effect at " << angle;
        // Outside the handle's reach the rim continues as at full strength.
        EXPECT_LT(difference(file.at_pixel(1, pad_pixels / 2), file.at(90, 100)), 1.5 / 255.0);
    }
}

TEST(pad_pictures, film_contrast_shows_a_graded_ramp)
{
    const pad_file file("film_contrast_xy_background.png");
    for (const double angle : {0.0, 90.0, 180.0, 270.0})
    {
        SCOPED_TRACE(angle);
        // The ramp is at its darkest in the middle column and at its lightest 15 points beside it.
        const double radius = full_strength_points * artwork_scale;
        const bool upright = angle == 0.0 || angle == 180.0;
        const double x = upright ? 0 : angle == 90.0 ? -3 * 30.0 : 3 * 30.0;
        const double level = upright ? 0.15 : 0.85;
        const double y = upright ? (angle == 0.0 ? -radius : radius) : 0;
        const argb_float got =
            file.at_pixel(pad_pixels / 2 + static_cast<int>(x), pad_pixels / 2 + static_cast<int>(y));
        const double strength = std::hypot(x, y) / radius * 100.0;
        const argb_float wanted = graded(
            {level, level, level}, {{index::film_contrast_angle, angle}, {index::film_contrast_strength, strength}});
        EXPECT_LT(difference(got, wanted), 6.0 / 255.0); // half a pixel of the ramp is 3 codes
    }
    const auto reach = [&](double angle)
    {
        double least = 1, most = 0;
        for (int x = -14; x <= 14; ++x)
        {
            const argb_float p = file.at_pixel(pad_pixels / 2 + (angle == 90.0 ? -90 : 90) + x, pad_pixels / 2);
            least = std::min<double>(least, p.g), most = std::max<double>(most, p.g);
        }
        return most - least;
    };
    EXPECT_LT(reach(90) + 0.05, reach(270)); // flat to the left, contrast to the right
}

TEST(pad_pictures, wheels_have_red_on_top_and_hues_grow_counter_clockwise)
{
    const struct
    {
        const char* name;
        zone z;
    } wheels[] = {{"shadows_xy_background.png", zone::shadows},
                  {"mids_xy_background.png", zone::mids},
                  {"highlights_xy_background.png", zone::highlights}};
    for (const auto& wheel : wheels)
    {
        SCOPED_TRACE(wheel.name);
        const pad_file file(wheel.name);
        for (const int hue : {0, 90, 120, 240, 300})
        {
            const auto [lightness, reach, chroma] = constants_of(wheel.z);
            const rgb_double c = rgb_of(
                {hue * 1000, static_cast<std::int32_t>(chroma * 1000), static_cast<std::int32_t>(lightness * 1000)});
            const argb_float wanted{1, static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b)};
            EXPECT_LT(difference(file.at(hue, 100), wanted), 2.5 / 255.0) << hue;
        }
        EXPECT_NEAR(file.at(0, 0).r, constants_of(wheel.z).lightness_percent * 2.56 / 255, 2.0 / 255.0);
    }
    const pad_file master("master_xy_background.png");
    EXPECT_GT(master.at(0, 100).r, 0.98f);
    EXPECT_LT(master.at(0, 100).g, 0.02f);
}

TEST(arc_ramps, run_from_grey_to_colour_and_from_dark_to_light)
{
    engine_colours engine;
    const auto chroma = [](const rgb_double& c) { return std::max({c.r, c.g, c.b}) - std::min({c.r, c.g, c.b}); };
    EXPECT_LT(chroma(chroma_ramp(engine, 0.0)), 0.005);
    EXPECT_GT(chroma(chroma_ramp(engine, 1.0)), 0.95);
    EXPECT_LT(chroma(protection_ramp(engine, 0.0)), 0.02);
    EXPECT_NEAR(protection_ramp(engine, 1.0).r, skin_anchor.r, 1.0 / 255.0);
    EXPECT_NEAR(protection_ramp(engine, 1.0).b, skin_anchor.b, 1.0 / 255.0);
    EXPECT_NEAR(skin_brightness_ramp(engine, 0.5).g, skin_anchor.g, 1.0 / 255.0);
    for (double place = 0.0; place < 0.95; place += 0.1)
    {
        SCOPED_TRACE(place);
        EXPECT_GT(chroma(chroma_ramp(engine, place + 0.1)), chroma(chroma_ramp(engine, place)));
        EXPECT_GE(chroma(protection_ramp(engine, place + 0.1)), chroma(protection_ramp(engine, place)));
        EXPECT_GT(lightness_ramp(place + 0.1).g, lightness_ramp(place).g);
        EXPECT_GT(skin_brightness_ramp(engine, place + 0.1).g, skin_brightness_ramp(engine, place).g);
    }
}

} // namespace
} // namespace ov1

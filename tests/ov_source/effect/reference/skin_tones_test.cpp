#include "effect/reference/skin_tones.h"

#include "effect/build/build_lut.h"
#include "effect/reference/lut_utils.h"
#include "effect/skin_data.h"
#include "tools/looks/delta_e.h"
#include "tools/looks/memory_colours.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using table = lut_argb<lut_edge>;

struct amounts
{
    double protect = 0, chroma = 0, hue = 0, brightness = 0;
};

/// Reference tables that no real ones resemble: each moves one channel by its own step.
table moved(float argb_float::* channel, float step)
{
    table t;
    for (argb_float& e : t.get_entries())
        e.*channel += step;
    return t;
}

void modify(table& t, const amounts& by)
{
    lut_utils::modify_skin_tones(t, by.protect, by.chroma, by.hue, moved(&argb_float::r, -0.02f),
                                 moved(&argb_float::g, 0.03f), by.brightness, moved(&argb_float::b, 0.04f),
                                 moved(&argb_float::g, -0.05f));
}

TEST(modify_skin_tones, nothing_asked_for_leaves_every_bit)
{
    table odd;
    for (argb_float& e : odd.get_entries())
        e = {0.5f, e.g * 1.5f - 0.2f, e.b, e.r};
    const table before = odd;
    modify(odd, {});
    EXPECT_EQ(odd, before);
    modify(odd, {0, 0.00099, -0.00099, 0.00099}); // too small to act
    EXPECT_EQ(odd, before);
    modify(odd, {0, 0.024, 0, 0}); // 0.96 percent of chroma, whole percents act
    EXPECT_EQ(odd, before);
}

rgb_double graded(const table& t, const rgb_double& c)
{
    const argb_float to = t.lookup({1, static_cast<float>(c.r), static_cast<float>(c.g), static_cast<float>(c.b)});
    return {to.r, to.g, to.b};
}

TEST(skin_controls, move_skin_of_all_tones_and_leave_sky_grass_and_greys)
{
    const std::tuple<const char*, parameter_index, float, float> rows[] = {
        {"more colour", parameter_index::skin_tone_strength, 100, 0},
        {"yellowish", parameter_index::skin_tone_strength, 100, 90},
        {"paler", parameter_index::skin_tone_strength, 100, 180},
        {"reddened", parameter_index::skin_tone_strength, 100, 270},
        {"lighter", parameter_index::skin_tone_brightness, 100, 0},
        {"darker", parameter_index::skin_tone_brightness, -100, 0},
    };
    const skin_tables skin;
    const veridial_luts looks;
    lut_argb<lut_edge> plain, pushed;
    build_lut({}, looks, skin, plain);
    for (const auto& [name, control, value, angle] : rows)
    {
        SCOPED_TRACE(name);
        grade_settings settings;
        settings.settings[static_cast<std::size_t>(control)].value = value;
        settings.settings[static_cast<std::size_t>(parameter_index::skin_angle)].value = angle;
        build_lut(settings, looks, skin, pushed);
        const auto change = [&](const rgb_double& c) { return delta_e_2000(graded(plain, c), graded(pushed, c)); };
        for (const char* colour : {"light skin", "dark skin"})
            EXPECT_GE(change(patch(colour)), 3.0) << colour;
        for (const char* colour : {"blue sky", "foliage", "green", "blue", "purple"})
            EXPECT_LT(change(patch(colour)), 0.5) << colour;
        for (int i = 0; i <= 255; ++i)
            ASSERT_LT(change({i / 255.0, i / 255.0, i / 255.0}), 0.5) << i;
    }
}

} // namespace
} // namespace ov1

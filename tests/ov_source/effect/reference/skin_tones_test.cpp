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

/// The grid point that is most skin.
std::size_t skin_entry()
{
    const auto& weights = lut_masks::select_skintones.weights;
    return static_cast<std::size_t>(std::ranges::max_element(weights) - weights.begin());
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

TEST(modify_skin_tones, signs_choose_the_reference_and_protection_comes_first)
{
    const std::size_t i = skin_entry();
    const float w = lut_masks::select_skintones.weights[i];
    ASSERT_GT(w, 0.95f);
    const std::tuple<const char*, amounts, float, float, float> rows[] = {
        {"yellowish", {0, 0, 0.5, 0}, -0.01f, 0, 0},
        {"reddened", {0, 0, -1, 0}, 0, 0.03f, 0},
        {"lighter", {0, 0, 0, 1}, 0, 0, 0.04f},
        {"darker", {0, 0, 0, -0.5}, 0, -0.025f, 0},
        {"two at once", {0, 0, 1, -1}, -0.02f, -0.05f, 0},
        {"none", {1, 0, 0, 0}, 0, 0, 0},
    };
    const argb_float still = table().get_entries()[i];
    for (const auto& [name, asked, r, g, b] : rows)
        for (const double protect : {0.0, 0.25, 1.0})
        {
            SCOPED_TRACE(name);
            table graded = moved(&argb_float::r, -0.1f);
            amounts by = asked;
            by.protect = protect;
            modify(graded, by);
            const argb_float got = graded.get_entries()[i];
            const float left = 1.0f - w * static_cast<float>(protect);
            EXPECT_NEAR(got.r, still.r - 0.1f * left + w * r, 1e-6);
            EXPECT_NEAR(got.g, still.g + w * g, 1e-6);
            EXPECT_NEAR(got.b, still.b + w * b, 1e-6);
        }
}

TEST(modify_skin_tones, a_chroma_push_moves_nothing_outside_the_mask)
{
    const table before = moved(&argb_float::r, -0.1f);
    for (const double push : {1.0, -1.0})
    {
        table t = before;
        lut_utils::add(t, table(), 1.0f, true); // the limits that a push sets are not the matter here
        const table limited = t;
        modify(t, {0, push, 0, 0});
        double inside = 0.0;
        for (std::size_t i = 0; i < t.get_entries().size(); ++i)
        {
            const argb_float &got = t.get_entries()[i], &was = limited.get_entries()[i];
            const double change = (got.r - got.b) - (was.r - was.b);
            const double selected = 1.0 - lut_masks::select_skintones_extreme.weights[i];
            ASSERT_LE(std::abs(change), selected > 0.0 ? 0.42 : 1e-6) << i;
            inside = push > 0 ? std::max(inside, change) : std::min(inside, change);
        }
        EXPECT_GT(inside * push, 0.2); // of 0.4 asked for
    }
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

#include "tools/looks/colour_space.h"

#include "tools/looks/shaping.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace ov1
{
namespace
{

TEST(colour_space, primaries_have_their_published_places)
{
    // OKLCh of the sRGB primaries as CSS Color 4 gives them; L*a*b* under D65 by arithmetic from the matrix of the
    // standard.
    const struct
    {
        rgb_double code;
        oklch polar;
        cielab lab;
    } rows[] = {
        {{1, 0, 0}, {0.62796, 0.25768, 29.23}, {53.24, 80.09, 67.20}},
        {{0, 1, 0}, {0.86644, 0.29483, 142.50}, {87.73, -86.18, 83.18}},
        {{0, 0, 1}, {0.45201, 0.31321, 264.05}, {32.30, 79.19, -107.86}},
        {{0.5, 0.5, 0.5}, {0.59818, 0, 0}, {53.39, 0, 0}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.polar.hue);
        const oklch polar = oklch_of(row.code);
        EXPECT_NEAR(polar.lightness, row.polar.lightness, 1e-4);
        EXPECT_NEAR(polar.chroma, row.polar.chroma, 1e-4);
        EXPECT_NEAR(row.polar.chroma * hue_difference(row.polar.hue, polar.hue), 0.0, 0.003); // a grey has no hue
        const cielab lab = cielab_of(row.code);
        EXPECT_NEAR(lab.lightness, row.lab.lightness, 0.01);
        EXPECT_NEAR(lab.a, row.lab.a, 0.02);
        EXPECT_NEAR(lab.b, row.lab.b, 0.02);
    }
}

TEST(colour_space, colours_come_back_also_from_outside_the_gamut)
{
    std::mt19937 engine(7);
    std::uniform_real_distribution<double> code(-0.1, 1.1);
    for (int i = 0; i < 1000; ++i)
    {
        const rgb_double c{code(engine), code(engine), code(engine)};
        const rgb_double back = code_of(oklab_of(oklch_of(c)));
        // The published matrices invert each other to eight digits; the curve's foot is 13 times as steep.
        EXPECT_NEAR(back.r, c.r, 2e-5);
        EXPECT_NEAR(back.g, c.g, 2e-5);
        EXPECT_NEAR(back.b, c.b, 2e-5);
    }
    EXPECT_NEAR(linear_of_code(-0.5), -0.2140411, 1e-6);
    EXPECT_NEAR(code_of_linear(0.001), 0.01292, 1e-9);
    EXPECT_NEAR(grey_of_lightness(oklab_of(rgb_double{0.3, 0.3, 0.3}).lightness), 0.3, 1e-6);
    EXPECT_NEAR(hue_difference(350, 10), 20, 1e-12);
    EXPECT_NEAR(hue_difference(10, 350), -20, 1e-12);
}

TEST(shaping, ramps_rise_by_at_most_five_quarters_of_a_line)
{
    EXPECT_EQ(ramp(3.0, 3.0, 5.0), 0.0);
    EXPECT_EQ(ramp(5.0, 3.0, 5.0), 1.0);
    EXPECT_NEAR(ramp(3.5, 3.0, 5.0), 0.125 + 0.5 * 0.0625 * 2.5, 1e-12);
    EXPECT_NEAR(smoothstep(0.25, 0.0, 1.0), 0.103515625, 1e-12);
    for (double x = 2.0; x < 6.0; x += 0.01)
    {
        const double step = ramp(x + 0.01, 3.0, 5.0) - ramp(x, 3.0, 5.0);
        ASSERT_GE(step, 0.0) << x;
        ASSERT_LE(step, 1.25 / 2.0 * 0.01 + 1e-12) << x;
    }
    const window w{10, 20, 30, 50};
    EXPECT_EQ(w.weight(25), 1.0);
    EXPECT_EQ(w.weight(10), 0.0);
    EXPECT_EQ(w.weight(50), 0.0);
    EXPECT_NEAR(w.weight(40), 0.5, 1e-12);
}

TEST(shaping, a_rolled_off_step_stays_inside_and_starts_at_full_slope)
{
    const rgb_double from{0.2, 0.9, 1.0};
    const rgb_double far = rolled_off(from, {-5.0, 7.0, 3.0}, 0.6);
    EXPECT_NEAR(far.r, 0.2 * 0.4, 1e-9); // 1 - k of the room is never used up
    EXPECT_NEAR(far.g, 0.96, 1e-9);
    EXPECT_EQ(far.b, 1.0);
    const rgb_double near = rolled_off(from, {0.201, 0.899, 0.999}, 0.6);
    EXPECT_NEAR(near.r, 0.201, 1e-7);
    EXPECT_NEAR(near.g, 0.899, 1e-7);
    EXPECT_NEAR(near.b, 0.999, 1e-7);
}

} // namespace
} // namespace ov1

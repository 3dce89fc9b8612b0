#include "effect/lut/integer_hsl.h"

#include "effect/lut/skin_square.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

TEST(integer_hsl, converts_the_six_corners_and_half_grey)
{
    constexpr double half = 128.0 / 255.0; // the scale by 256 / 255
    const std::pair<hsl_milli, rgb_double> rows[] = {
        {{0, 100'000, 50'000}, {1, 0, 0}},          {{60'000, 100'000, 50'000}, {1, 1, 0}},
        {{120'000, 100'000, 50'000}, {0, 1, 0}},    {{180'000, 100'000, 50'000}, {0, 1, 1}},
        {{240'000, 100'000, 50'000}, {0, 0, 1}},    {{300'000, 100'000, 50'000}, {1, 0, 1}},
        {{30'000, 100'000, 50'000}, {1, half, 0}},  {{90'000, 100'000, 50'000}, {half, 1, 0}},
        {{210'000, 100'000, 50'000}, {0, half, 1}}, {{123'456, 0, 50'000}, {half, half, half}},
        {{360'000, 100'000, 50'000}, {1, 0, 0}},    {{-60'000, 100'000, 50'000}, {1, 0, 1}},
    };
    for (const auto& [from, to] : rows)
    {
        SCOPED_TRACE(from.hue);
        const rgb_double got = rgb_of(from);
        EXPECT_NEAR(got.r, to.r, 1e-12);
        EXPECT_NEAR(got.g, to.g, 1e-12);
        EXPECT_NEAR(got.b, to.b, 1e-12);
    }
}

TEST(integer_hsl, limits_chroma_to_what_the_lightness_allows)
{
    // At lightness 80 the chroma can be 40: high 100, low 60.
    const rgb_double light = rgb_of({0, 100'000, 80'000});
    EXPECT_NEAR(light.r, 1.0, 1e-12);
    EXPECT_NEAR(light.b, 0.6 * 256 / 255, 1e-12);
    // Outside the domain nothing overflows and white and black hold.
    EXPECT_EQ(rgb_of({0, 100'000, 130'000}).g, 1.0);
    EXPECT_EQ(rgb_of({0, 100'000, -20'000}).r, 0.0);
    EXPECT_EQ(limited_milli(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(limited_milli(1e30), 100'000);
    EXPECT_EQ(hue_milli_of(-0.5), 359'500);
    EXPECT_EQ(hue_milli_of(360.0), 0);
    EXPECT_EQ(hue_milli_of(std::numeric_limits<double>::infinity()), 0);
}

TEST(integer_hsl, hue_comes_back_from_the_hexcone)
{
    for (std::int32_t hue = 0; hue < 360'000; hue += 7'919)
    {
        const rgb_double c = rgb_of({hue, 40'000, 45'000});
        // Channels are whole thousandths of 40,000: the hue is known to 60,000 / 40,000.
        EXPECT_NEAR(hexcone_hue(c), hue, 1.6) << hue;
    }
    EXPECT_EQ(hexcone_hue({7, 7, 7}), 0.0);
}

TEST(skin_square, reaches_sides_and_corners_and_is_unbroken)
{
    const std::tuple<double, double, double> rows[] = {
        {0, 100, 0},      {45, 100, -100}, {90, 0, -100},   {135, -100, -100}, {180, -100, 0},
        {225, -100, 100}, {270, 0, 100},   {315, 100, 100}, {360, 100, 0},     {22.5, 100, -50}};
    for (const auto& [angle, u, v] : rows)
    {
        SCOPED_TRACE(angle);
        EXPECT_NEAR(skin_square_of(angle).u, u, 1e-5);
        EXPECT_NEAR(skin_square_of(angle).v, v, 1e-5);
    }
    for (double angle = 0; angle < 360; angle += 0.01)
    {
        const skin_square p = skin_square_of(angle), q = skin_square_of(angle + 0.01);
        ASSERT_LT(std::abs(p.u - q.u) + std::abs(p.v - q.v), 0.03) << angle;
    }
}

} // namespace
} // namespace ov1

#include "effect/lut/lut_argb.h"

#include "effect/lut/bin_lut.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace ov1
{
namespace
{

using table = lut_argb<17>;

/// A table whose entries all differ, so that swapped axes and wrong corners are seen.
table scrambled()
{
    table t(table::init_mode::none);
    std::mt19937 engine(17);
    std::uniform_real_distribution<float> any(-0.5f, 1.5f);
    for (argb_float& entry : t.get_entries())
        entry = {any(engine), any(engine), any(engine), any(engine)};
    return t;
}

/// Trilinear interpolation as a sum of eight weighted corners, in double precision: an independent formula.
double weighted_corners(const table& t, const argb_float& c, float argb_float::* channel)
{
    const auto axis = [](float v) { return std::min(std::max(v * 16.0, 0.0), 16.0); };
    const double x[3] = {axis(c.r), axis(c.g), axis(c.b)};
    double sum = 0.0;
    for (int corner = 0; corner < 8; ++corner)
    {
        double weight = 1.0;
        std::size_t at[3];
        for (int i = 0; i < 3; ++i)
        {
            const double low = std::min(std::floor(x[i]), 15.0);
            const bool upper = (corner >> i & 1) != 0;
            weight *= upper ? x[i] - low : 1.0 - (x[i] - low);
            at[i] = static_cast<std::size_t>(low) + upper;
        }
        sum += weight * t.get_direct(at[0], at[1], at[2]).*channel;
    }
    return sum;
}

TEST(lut_argb, red_is_the_slowest_axis_and_blue_the_fastest)
{
    const table t;
    EXPECT_EQ(&t.get_direct(2, 3, 5), &t.get_entries()[2 * 289 + 3 * 17 + 5]);
    const argb_float c = t.get_direct(2, 3, 5);
    EXPECT_FLOAT_EQ(c.r, 2 / 16.0f);
    EXPECT_FLOAT_EQ(c.g, 3 / 16.0f);
    EXPECT_FLOAT_EQ(c.b, 5 / 16.0f);
    EXPECT_THROW(t.get_direct(0, 0, 17), std::out_of_range) << "would be a neighbour's entry";
    EXPECT_THROW(t.get_direct(17, 0, 0), std::out_of_range);
}

TEST(lut_argb, lookup_is_the_sum_of_the_weighted_corners)
{
    const table t = scrambled();
    std::mt19937 engine(4);
    std::uniform_real_distribution<float> any(-0.2f, 1.2f);
    for (int i = 0; i < 20'000; ++i)
    {
        const argb_float c{0.0f, any(engine), any(engine), any(engine)};
        const argb_float got = t.lookup(c);
        // Seven roundings of values below 2.
        for (const auto channel : {&argb_float::a, &argb_float::r, &argb_float::g, &argb_float::b})
            ASSERT_NEAR(got.*channel, weighted_corners(t, c, channel), 2e-6) << c.r << ' ' << c.g << ' ' << c.b;
    }
}

TEST(lut_argb, lookup_of_a_grid_point_is_its_entry_to_the_bit)
{
    const table t = scrambled();
    for (std::size_t r = 0; r < 17; ++r)
        for (std::size_t g = 0; g < 17; ++g)
            for (std::size_t b = 0; b < 17; ++b)
                ASSERT_EQ(t.lookup({0, r / 16.0f, g / 16.0f, b / 16.0f}), t.get_direct(r, g, b));
}

TEST(lut_argb, lookup_clamps_what_lies_outside_and_takes_nan_as_zero)
{
    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float big = std::numeric_limits<float>::max();
    const table t = scrambled();
    const std::pair<float, float> rows[] = {{-0.001f, 0}, {1.001f, 1}, {-inf, 0}, {inf, 1},  {big, 1},
                                            {-big, 0},    {nan, 0},    {-nan, 0}, {-0.0f, 0}};
    for (const auto& [given, same_as] : rows)
    {
        SCOPED_TRACE(given);
        EXPECT_EQ(t.lookup({0, given, 0.3f, 0.7f}), t.lookup({0, same_as, 0.3f, 0.7f}));
        EXPECT_EQ(t.lookup({0, 0.3f, given, 0.7f}), t.lookup({0, 0.3f, same_as, 0.7f}));
        EXPECT_EQ(t.lookup({0, 0.3f, 0.7f, given}), t.lookup({0, 0.3f, 0.7f, same_as}));
    }
}

TEST(lut_argb, written_bytes_are_read_back_and_damaged_ones_give_the_identity)
{
    const table t = scrambled();
    const auto bytes = write_bin_lut(t.get_entries(), 17);
    ASSERT_EQ(bytes.size(), 58'958u);
    const table back = table::from_vec(bytes);
    for (std::size_t i = 0; i < t.get_entries().size(); ++i)
    {
        const argb_float& e = t.get_entries()[i];
        ASSERT_EQ(back.get_entries()[i], (argb_float{1.0f, e.r, e.g, e.b}));
    }

    auto header_33 = bytes, header_273 = bytes, longer = bytes, shorter = bytes;
    header_33[0] = 33;
    header_273[1] = 1; // 17 + 256: the second byte counts
    longer.push_back(0);
    shorter.pop_back();
    const std::pair<std::vector<unsigned char>, const char*> rows[] = {
        {header_33, "has 33 points per axis instead of 17"},
        {header_273, "has 273 points per axis instead of 17"},
        {longer, "has 58959 bytes instead of 58958"},
        {shorter, "has 58957 bytes instead of 58958"},
        {{}, "has 0 bytes instead of 58958"},
        {{17, 0}, "has 2 bytes instead of 58958"},
    };
    for (const auto& [damaged, reason] : rows)
    {
        SCOPED_TRACE(reason);
        EXPECT_EQ(table::from_vec(damaged), table());
        const auto read = read_bin_lut(damaged, 17);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().reason, reason);
    }
}

} // namespace
} // namespace ov1

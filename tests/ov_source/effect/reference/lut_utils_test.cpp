#include "effect/reference/lut_utils.h"

#include "effect/lut/integer_hsl.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

using table = lut_argb<17>;

table constant(const argb_float& c)
{
    table t(table::init_mode::none);
    for (argb_float& entry : t.get_entries())
        entry = c;
    return t;
}

TEST(lut_utils_add, adds_the_difference_from_the_identity)
{
    table look;
    look.get_entries()[table::index(4, 8, 12)] = {1, 0.5f, 0.25f, 0.875f}; // identity there: 0.25, 0.5, 0.75
    table t = constant({1, 0.4f, 0.4f, 0.4f});
    lut_utils::add(t, look, 0.5f, false);
    const argb_float moved = t.get_direct(4, 8, 12);
    EXPECT_NEAR(moved.r, 0.4 + 0.125, 1e-6);
    EXPECT_NEAR(moved.g, 0.4 - 0.125, 1e-6);
    EXPECT_NEAR(moved.b, 0.4 + 0.0625, 1e-6);
    // The identity's entries are floats of i x 4095.9375 / 65535: a rounding away from i / 16.
    EXPECT_NEAR(t.get_direct(12, 8, 4).r, 0.4, 1e-7);
}

TEST(lut_utils_add, limits_channels_and_sets_alpha_only_where_asked)
{
    const table white(table::init_mode::white);
    table open = constant({0.5f, 0.9f, -0.4f, 0.5f});
    table limited = open;
    lut_utils::add(open, white, 2.0f, false);
    lut_utils::add(limited, white, 2.0f, true);
    EXPECT_NEAR(open.get_direct(0, 0, 0).r, 2.9, 1e-6);
    EXPECT_NEAR(open.get_direct(0, 16, 0).g, -0.4, 1e-6);
    EXPECT_EQ(open.get_direct(0, 0, 0).a, 0.5f);
    EXPECT_EQ(limited.get_direct(0, 0, 0), (argb_float{1, 1, 1, 1}));
    EXPECT_EQ(limited.get_direct(0, 16, 0).g, 0.0f);

    table spoiled = constant({1, std::numeric_limits<float>::quiet_NaN(), 0.5f, 0.5f});
    lut_utils::add(spoiled, table(), 1.0f, true);
    EXPECT_EQ(spoiled.get_direct(3, 3, 3).r, 0.0f);
}

TEST(lut_utils_apply, composes_wholly_partly_or_not)
{
    const table inverse = []
    {
        table t;
        for (argb_float& e : t.get_entries())
            e = {1, 1 - e.r, 1 - e.g, 1 - e.b};
        return t;
    }();
    const table start = constant({1, 0.3f, 0.5f, 0.9f});
    const std::tuple<float, float, float, float> rows[] = {
        {0.0f, 0.3f, 0.5f, 0.9f}, {1.0f, 0.7f, 0.5f, 0.1f}, {0.25f, 0.4f, 0.5f, 0.7f}};
    for (const auto& [amount, r, g, b] : rows)
    {
        SCOPED_TRACE(amount);
        table t = start;
        lut_utils::apply(t, inverse, amount);
        EXPECT_NEAR(t.get_direct(5, 6, 7).r, r, 1e-6);
        EXPECT_NEAR(t.get_direct(5, 6, 7).g, g, 1e-6);
        EXPECT_NEAR(t.get_direct(5, 6, 7).b, b, 1e-6);
    }
}

TEST(lut_mask, mixes_all_four_fields_by_weight_or_its_complement)
{
    auto mask = std::make_unique<lut_mask<17>>();
    mask->weights[7] = 0.25f;
    const table other = constant({0, 1, 0.5f, 0});
    table as_is = constant({1, 0, 0.5f, 0.8f});
    table complement = as_is;
    mask->mix(as_is, other, mask_mode::as_is);
    mask->mix(complement, other, mask_mode::complement);
    EXPECT_EQ(as_is.get_entries()[7].r, 0.25f);
    EXPECT_EQ(as_is.get_entries()[7].a, 0.75f);
    EXPECT_NEAR(as_is.get_entries()[7].b, 0.6, 1e-6);
    EXPECT_EQ(as_is.get_entries()[8].r, 0.0f);
    EXPECT_EQ(complement.get_entries()[7].r, 0.75f);
    EXPECT_EQ(complement.get_entries()[8].r, 1.0f);
}

/// A colour after a push of chroma where the mask has a weight.
argb_float pushed(const argb_float& colour, int amount, float weight)
{
    auto mask = std::make_unique<lut_mask<17>>();
    mask->weights[0] = weight;
    table t = constant(colour);
    lut_utils::add_chroma(t, amount, *mask, mask_mode::as_is);
    return t.get_entries()[0];
}

TEST(lut_utils_add_chroma, ramps_in_above_one_percent)
{
    const std::tuple<double, int, float, double> rows[] = {
        {20, 15, 1, 35}, {20, 15, 0, 20}, {20, 15, 0.5f, 27.5}, {20, -15, 1, 5},    {20, -50, 1, 0},
        {4, 12, 1, 10},  {1, 40, 1, 1},   {0, 40, 1, 0},        {0.5, -40, 1, 0.5}, {90, 40, 1, 100.0 * 255 / 256},
    };
    for (const auto& [given, amount, weight, expected] : rows)
    {
        SCOPED_TRACE(given);
        const auto half = static_cast<float>(given / 200);
        const argb_float c = pushed({1, 0.5f + half, 0.5f, 0.5f - half}, amount, weight);
        const double chroma = (std::max({c.r, c.g, c.b}) - std::min({c.r, c.g, c.b})) * 100.0 * 255 / 256;
        // At 100 the largest channel is capped at 1. Tolerance: two channels of whole thousandths, and the float of the
        // entry.
        EXPECT_NEAR(chroma, expected, 0.005);
    }
}

TEST(lut_utils_add_chroma, keeps_alpha_hue_and_lightness)
{
    const argb_float c = pushed({0.25f, 0.2f, 0.5f, 0.3f}, 20, 1.0f);
    EXPECT_EQ(c.a, 0.25f);
    EXPECT_NEAR(hexcone_hue({c.r, c.g, c.b}), 140'000, 10);
    EXPECT_NEAR((c.g + c.r) / 2, 0.35 * 256 / 255, 2e-5);
}

} // namespace
} // namespace ov1

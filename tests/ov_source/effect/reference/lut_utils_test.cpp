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

TEST(lut_utils_add_chroma, keeps_alpha_hue_and_lightness)
{
    auto mask = std::make_unique<lut_mask<17>>();
    mask->weights.fill(1.0f);
    table t = constant({0.25f, 0.2f, 0.5f, 0.3f});
    lut_utils::add_chroma(t, 20, *mask, mask_mode::as_is);
    const argb_float c = t.get_entries()[0];
    EXPECT_EQ(c.a, 0.25f);
    EXPECT_NEAR(hexcone_hue({c.r, c.g, c.b}), 140'000, 10);
    EXPECT_NEAR((c.g + c.r) / 2, 0.35 * 256 / 255, 2e-5);
}

} // namespace
} // namespace ov1

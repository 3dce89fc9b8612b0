#include "shared/param_value.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

param_value continuous(float value, float min, float max, float default_value = 0.0f)
{
    return {param_type::continuous, param_cell::of(value), param_cell::of(default_value), param_bound::of(min),
            param_bound::of(max)};
}

param_value integral(std::int32_t value, std::int32_t min, std::int32_t max)
{
    return {param_type::integral, param_cell::of(value), param_cell::of(std::int32_t{0}), param_bound::of(min),
            param_bound::of(max)};
}

param_value color(const param_argb& value)
{
    return {param_type::color, param_cell::of(value), param_cell::of(param_argb{}), {}, {}};
}

TEST(param_value, clamps_to_the_bounds_of_the_candidate_min_first)
{
    const param_value self = continuous(50, -1000, 1000);
    const struct
    {
        float value, min, max, expected;
    } rows[] = {
        {7, 0, 5, 5}, {-1, 0, 5, 0}, {3, 0, 5, 3}, {0, 9, 4, 4}, {inf, 0, 5, 5}, {-inf, 0, 5, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.value);
        param_value v = continuous(row.value, row.min, row.max);
        self.bounce_and_quantize(v);
        EXPECT_EQ(v.value.as_continuous(), row.expected);
    }
    param_value whole = integral(-11, -10, 10);
    integral(0, -3, 3).bounce_and_quantize(whole);
    EXPECT_EQ(whole.value.as_integral(), -10);
}

TEST(param_value, does_not_change_a_candidate_of_another_kind)
{
    param_value v = integral(99, 0, 5);
    continuous(0, 0, 5).bounce_and_quantize(v);
    EXPECT_EQ(v.value.as_integral(), 99);
    param_value c = color({2, 2, 2, 2});
    color({}).bounce_and_quantize(c);
    EXPECT_EQ(c.value.as_color().red, 2.0f);
}

TEST(param_value, is_valid_accepts_values_of_the_same_kind_within_bounds)
{
    const param_value self = continuous(0, 0, 5);
    EXPECT_TRUE(self.is_valid(continuous(0, 0, 5)));
    EXPECT_TRUE(self.is_valid(continuous(5, 0, 5)));
    EXPECT_FALSE(self.is_valid(continuous(5.001f, 0, 5)));
    EXPECT_FALSE(self.is_valid(continuous(nan, 0, 5)));
    EXPECT_FALSE(self.is_valid(integral(1, 0, 5)));
    EXPECT_FALSE(integral(0, 0, 5).is_valid(integral(6, 0, 5)));
    EXPECT_FALSE(param_value{}.is_valid(param_value{}));

    param_value fifth = self;
    fifth.type = static_cast<param_type>(4);
    EXPECT_FALSE(fifth.is_valid(fifth));

    for (const float edge : {0.0f, 1.0f})
        EXPECT_TRUE(color({}).is_valid(color({edge, edge, edge, edge})));
    for (const param_argb& out :
         {param_argb{1.0001f, 0, 0, 0}, param_argb{0, -0.1f, 0, 0}, param_argb{0, 0, nan, 0}, param_argb{0, 0, 0, 2}})
        EXPECT_FALSE(color({}).is_valid(color(out)));
}

TEST(param_value, compares_with_the_default_by_kind)
{
    EXPECT_TRUE(continuous(-0.0f, 0, 1).is_default_value()) << "-0.0 equals 0.0 although its bytes differ";
    EXPECT_FALSE(continuous(nan, 0, 1, nan).is_default_value());
    EXPECT_FALSE(color({0, 0, 0, 0.5f}).is_default_value()) << "the last channel counts";
    param_value flag{param_type::boolean, param_cell::of(true), param_cell::of(true), {}, {}};
    flag.value.bytes[1] = 77;
    EXPECT_TRUE(flag.is_default_value()) << "only the first byte of a boolean counts";
    EXPECT_FALSE(param_value{}.is_default_value());
}

} // namespace
} // namespace ov1

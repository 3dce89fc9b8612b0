#include "shared/half_float.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

constexpr unsigned infinite = 0x7c00;

TEST(half_float, every_half_is_its_mantissa_times_its_power_of_two)
{
    for (unsigned size = 0; size < infinite; ++size)
    {
        const unsigned exponent = size >> 10, mantissa = size & 0x3ff;
        const double value =
            exponent == 0 ? std::ldexp(mantissa, -24) : std::ldexp(1024 + mantissa, static_cast<int>(exponent) - 25);
        ASSERT_EQ(half_to_float(static_cast<half_bits>(size)), value) << size;
        ASSERT_EQ(half_to_float(static_cast<half_bits>(size | 0x8000)), -value) << size;
        ASSERT_EQ(float_to_half(static_cast<float>(value)), size);
        ASSERT_EQ(float_to_half(static_cast<float>(-value)), size | 0x8000);
    }
    EXPECT_TRUE(std::signbit(half_to_float(0x8000)));
}

TEST(half_float, values_between_two_halfs_round_to_nearest_ties_to_even)
{
    for (unsigned low = 0; low + 1 < infinite; ++low)
    {
        const float from = half_to_float(static_cast<half_bits>(low));
        const float middle = from + (half_to_float(static_cast<half_bits>(low + 1)) - from) / 2;
        ASSERT_EQ(float_to_half(middle), low + low % 2) << low;
        ASSERT_EQ(float_to_half(std::nextafter(middle, 0.0f)), low) << low;
        ASSERT_EQ(float_to_half(std::nextafter(middle, 1e9f)), low + 1) << low;
    }
}

TEST(half_float, large_values_become_infinite_and_a_nan_stays_one)
{
    EXPECT_EQ(float_to_half(std::nextafter(65520.0f, 0.0f)), infinite - 1);
    EXPECT_EQ(float_to_half(65520.0f), infinite);
    EXPECT_EQ(float_to_half(-std::numeric_limits<float>::infinity()), infinite | 0x8000);
    EXPECT_EQ(half_to_float(infinite), std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(half_to_float(infinite + 1)));
    EXPECT_EQ(float_to_half(half_to_float(0xfc01)), 0xfe01) << "quiet, with sign and mantissa";
}

} // namespace
} // namespace ov1

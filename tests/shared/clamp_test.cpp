#include "shared/clamp.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

TEST(clamped, keeps_values_in_range_and_turns_nan_into_0)
{
    constexpr float infinity = std::numeric_limits<float>::infinity();
    const struct
    {
        float value, largest, expected;
    } rows[] = {{0.25f, 1, 0.25f}, {1, 1, 1},         {1.5f, 1, 1},     {-0.5f, 1, 0},
                {infinity, 1, 1},  {-infinity, 1, 0}, {1.5f, 16, 1.5f}, {16.5f, 16, 16}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(clamped(row.value, row.largest), row.expected);
    }
    EXPECT_EQ(clamped(std::numeric_limits<float>::quiet_NaN()), 0.0f);
    EXPECT_FALSE(std::signbit(clamped(-0.0f)));
    EXPECT_EQ(clamped(argb_float{2, -1, 0.5f, 0.25f}), (argb_float{1, 0, 0.5f, 0.25f}));
}

} // namespace
} // namespace ov1

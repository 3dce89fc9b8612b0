#include "media/samples/transfer_curve.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace ov1::media
{
namespace
{

TEST(transfer_curve, agrees_with_the_formula_and_returns)
{
    const auto encode = [](double v) { return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055; };
    const auto decode = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    for (int i = 0; i <= 100003; ++i)
    {
        const float v = static_cast<float>(i) / 100003;
        ASSERT_NEAR(srgb_encoded(v), encode(v), 1.5e-7 * encode(v) + 1e-12) << v;
        ASSERT_NEAR(srgb_decoded(v), decode(v), 1.5e-7 * decode(v) + 1e-12) << v;
    }
    EXPECT_EQ(srgb_encoded(1.0f), 1.0f);
    EXPECT_EQ(srgb_decoded(1.0f), 1.0f);
    for (const float v : {-0.001f, -0.5f, -7.0f, 1.5f, 100.0f})
    {
        EXPECT_FLOAT_EQ(srgb_encoded(v), static_cast<float>(std::copysign(encode(std::fabs(v)), v)));
        EXPECT_NEAR(srgb_decoded(srgb_encoded(v)), v, 1e-5f * std::fabs(v));
    }
    EXPECT_TRUE(std::isnan(srgb_encoded(std::numeric_limits<float>::quiet_NaN())));
}

} // namespace
} // namespace ov1::media

#include "editor/controls/geometry/pad_geometry.h"

#include "vstgui/vstgui.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <tuple>

namespace ov1
{
namespace
{

TEST(pad_geometry, values_are_the_toolkits_to_the_bit)
{
    EXPECT_EQ(std::bit_cast<std::uint32_t>(pack_pad_value({0.5F, 0.5F})), 0x3F000347U);
    EXPECT_EQ(pack_pad_value({}), pad_centre_value);
    for (int i = 0; i <= 2000; i += 3)
        for (int j = 0; j <= 2000; ++j)
        {
            const pad_place place = {static_cast<float>(i) / 2000.0F, static_cast<float>(j) / 2000.0F};
            const float value = pack_pad_value(place);
            pad_place expected;
            VSTGUI::CXYPad::calculateXY(value, expected.x, expected.y);
            const pad_place unpacked = unpack_pad_value(value);
            ASSERT_EQ(value, VSTGUI::CXYPad::calculateValue(place.x, place.y)) << i << " " << j;
            ASSERT_TRUE(unpacked.x == expected.x && unpacked.y == expected.y) << i << " " << j;
        }
}

TEST(pad_geometry, angles_grow_counter_clockwise_from_up)
{
    const std::tuple<pad_place, float, float, float> cases[] = {
        // place, max_radius, angle, radius
        {{0.25F, 0.25F}, 1.0F, 45.0F, 70.710678F},
        {{0.25F, 0.75F}, 1.0F, 135.0F, 70.710678F},
        {{0.75F, 0.75F}, 1.0F, 225.0F, 70.710678F},
        {{0.35F, 0.3F}, 0.8F, 36.869898F, 62.5F}, // 0.3 and 0.4 from the centre
        {{1.0F, 0.0F}, 0.96F, 315.0F, 100.0F},    // beyond the rim
    };
    for (const auto& [place, max_radius, angle, radius] : cases)
    {
        const auto polar = polar_of(place, max_radius);
        ASSERT_TRUE(polar);
        EXPECT_NEAR(polar->angle, angle, 1e-4);
        EXPECT_NEAR(polar->radius, radius, 1e-4);
    }
    EXPECT_FALSE(polar_of({0.3F, 0.5F}, 0.9F) || polar_of({0.5F, 0.3F}, 0.9F)) << "none on an axis";
}

TEST(pad_geometry, angle_and_radius_come_back_from_their_place)
{
    const float max_radius = max_radius_of(121.0, 12.0, 2.5);
    EXPECT_FLOAT_EQ(max_radius, 116.25F / 121.0F);
    for (int angle = 1; angle < 360; angle += angle % 90 == 89 ? 2 : 1)
        for (const float radius : {0.5F, 37.0F, 100.0F})
        {
            const auto polar = polar_of(place_of({static_cast<float>(angle), radius}, max_radius), max_radius);
            ASSERT_TRUE(polar);
            ASSERT_NEAR(polar->angle, angle, 0.01) << radius; // single precision, near the centre
            ASSERT_NEAR(polar->radius, radius, 1e-3) << angle;
        }
}

TEST(pad_geometry, the_handle_stays_within_the_view_and_on_the_wheel)
{
    for (const pad_place place : {pad_place{0.0F, 0.1F}, {1.0F, 0.0F}, {0.5F, 1.0F}, {0.9F, 0.95F}, {0.4F, 0.3F}})
    {
        const pad_place rim = pulled_onto_rim(place, 0.8F);
        const double x = 2.0 * rim.x - 1.0, y = 2.0 * rim.y - 1.0;
        EXPECT_NEAR(std::hypot(x, y), std::min(0.8, std::hypot(2.0 * place.x - 1.0, 2.0 * place.y - 1.0)), 1e-6);
        EXPECT_NEAR(std::atan2(y, x), std::atan2(2.0 * place.y - 1.0, 2.0 * place.x - 1.0), 1e-6);
    }
    const pad_point corner = handle_centre({0.0F, 1.0F}, 121.0, 101.0, 12.0);
    EXPECT_TRUE(corner.x == 6.0 && corner.y == 95.0);
    EXPECT_TRUE(pad_contains({50.0, 35.0}, 100.0, 40.0, 0.75F)) << "the rim belongs to the wheel";
    EXPECT_FALSE(pad_contains({50.0, 35.1}, 100.0, 40.0, 0.75F) || pad_contains({20.0, 8.0}, 100.0, 40.0, 0.75F));
}

} // namespace
} // namespace ov1

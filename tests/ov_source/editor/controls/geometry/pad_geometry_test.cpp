#include "editor/controls/geometry/pad_geometry.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <tuple>

namespace ov1
{
namespace
{

TEST(pad_geometry, a_packed_value_holds_three_decimals_of_each_axis)
{
    EXPECT_EQ(std::bit_cast<std::uint32_t>(pack_pad_value({0.5F, 0.5F})), 0x3F000347U);
    EXPECT_EQ(pack_pad_value({}), pad_centre_value);
    EXPECT_NEAR(pack_pad_value({0.12345F, 0.6789F}), 0.1230679, 1e-8);
    // y is wrong by 1/1000 in at most 1 of 5000 points, and only in the right half, where a float has no digit left.
    int wrong = 0;
    for (int x = 0; x <= 1000; ++x)
        for (int y = 0; y <= 1000; ++y)
        {
            const pad_place place =
                unpack_pad_value(pack_pad_value({static_cast<float>(x) / 1000.0F, static_cast<float>(y) / 1000.0F}));
            ASSERT_NEAR(place.x, x / 1000.0, 1e-6) << y;
            ASSERT_NEAR(place.y, y / 1000.0, x > 500 ? 1.01e-3 : 1e-6) << x;
            wrong += std::abs(place.y - y / 1000.0) > 1e-6;
        }
    EXPECT_LE(wrong, 200);
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

TEST(pad_geometry, angle_and_radius_follow_from_the_place_they_give)
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

TEST(pad_geometry, a_nudge_moves_along_the_axes_and_stops_at_the_rim)
{
    const struct
    {
        const char* what;
        pad_polar from;
        float right, down;
        pad_polar expected;
    } cases[] = {
        {"up from the centre", {200.0F, 0.0F}, 0.0F, -3.0F, {0.0F, 3.0F}},
        {"right from the centre", {200.0F, 0.0F}, 3.0F, 0.0F, {270.0F, 3.0F}},
        {"left, from above", {0.0F, 40.0F}, -30.0F, 0.0F, {36.869898F, 50.0F}},
        {"down, from the left", {90.0F, 40.0F}, 0.0F, 30.0F, {126.869898F, 50.0F}},
        {"back to the centre", {90.0F, 1.0F}, 1.0F, 0.0F, {90.0F, 0.0F}},
        {"over the rim", {180.0F, 99.5F}, 0.0F, 1.0F, {180.0F, 100.0F}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.what);
        const pad_polar moved = nudged(c.from, c.right, c.down);
        EXPECT_NEAR(moved.angle, c.expected.angle, 1e-3);
        EXPECT_NEAR(moved.radius, c.expected.radius, 1e-4);
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
    // On the rim at the left, the handle's edge and half of its frame are inside the view.
    const float rim_radius = max_radius_of(121.0, 12.0, 2.5);
    const double left = handle_centre(place_of({90.0F, 100.0F}, rim_radius), 121.0, 121.0, 12.0).x;
    EXPECT_NEAR(left, 60.5 - handle_reach_of(121.0, 12.0, 2.5), 1e-4);
    EXPECT_GT(left - 6.0 - 1.25, 0.0);
    EXPECT_TRUE(pad_contains({50.0, 35.0}, 100.0, 40.0, 0.75F)) << "the rim belongs to the wheel";
    EXPECT_FALSE(pad_contains({50.0, 35.1}, 100.0, 40.0, 0.75F) || pad_contains({20.0, 8.0}, 100.0, 40.0, 0.75F));
}

} // namespace
} // namespace ov1

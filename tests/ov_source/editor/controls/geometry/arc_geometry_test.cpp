#include "editor/controls/geometry/arc_geometry.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace ov1
{
namespace
{

constexpr double degree = std::numbers::pi / 180.0;

TEST(arc_geometry, the_arrow_points_at_the_ends_of_its_range)
{
    const arc_angles angles = arc_angles_of(80.0, 100.0, 60.0, 164.0); // 40 above the middle, 64 below
    EXPECT_NEAR(angles.at(1.0), 30.0 * degree, 1e-12);
    EXPECT_NEAR(80.0 * std::sin(angles.at(0.0)), -64.0, 1e-12);
    const arc_angles narrow = arc_angles_of(40.0, 100.0, 0.0, 200.0);
    EXPECT_NEAR(narrow.at(0.0), -90.0 * degree, 1e-12);
    EXPECT_NEAR(narrow.at(1.0), 90.0 * degree, 1e-12);
}

TEST(arc_geometry, the_outline_runs_from_the_pivot_to_a_point_before_the_far_side)
{
    constexpr double up_30 = 30.0 * degree;
    for (const auto side : {COVArrowArcOrientation::pivot_right, COVArrowArcOrientation::pivot_left})
    {
        SCOPED_TRACE(static_cast<int>(side));
        const bool points_left = side == COVArrowArcOrientation::pivot_right;
        const arrow_outline outline = arrow_outline_of({10.0, 20.0, 50.0, 120.0, 2.0, side}, up_30);
        const arc_point pivot = {points_left ? 50.0 : 10.0, 70.0};
        // Measured from the pivot, away from the wheel and up.
        const auto away = [&](std::size_t i) { return (points_left ? -1.0 : 1.0) * (outline[i].x - pivot.x); };
        const auto up = [&](std::size_t i) { return pivot.y - outline[i].y; };
        EXPECT_NEAR(away(2), 37.0 * std::cos(up_30), 1e-9) << "40 less 1 and the frame of 2";
        EXPECT_NEAR(up(2), 18.5, 1e-9);
        for (const std::size_t barb : {1U, 3U})
            EXPECT_NEAR(std::hypot(away(barb), up(barb)), 34.5, 1e-9) << "2.5 behind the tip";
        EXPECT_NEAR(std::atan2(up(3), away(3)) - std::atan2(up(1), away(1)), 2.0 * std::atan(2.5 / 34.5), 1e-9);
        // The base: 2.5 to either side of the pivot, perpendicular, the lower end first.
        EXPECT_NEAR(away(0), 1.25, 1e-9);
        EXPECT_NEAR(up(0), -2.5 * std::cos(up_30), 1e-9);
        EXPECT_NEAR(away(4), -1.25, 1e-9);
        EXPECT_NEAR(up(4), 2.5 * std::cos(up_30), 1e-9);
    }
}

} // namespace
} // namespace ov1

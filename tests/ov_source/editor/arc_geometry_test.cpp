#include "editor/arc_geometry.h"

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

TEST(arc_geometry, an_arrow_keeps_its_shape_as_it_swings)
{
    // Along the ray from the pivot and across it: 83 wide less a point and the frame, and 2.5 to either side.
    const double barb = 77.5 / std::hypot(1.0, 2.5 / 77.5);
    const arc_point shape[] = {
        {0.0, -2.5}, {barb, -barb * 2.5 / 77.5}, {80.0, 0.0}, {barb, barb * 2.5 / 77.5}, {0.0, 2.5}};
    for (const auto side : {COVArrowArcOrientation::pivot_right, COVArrowArcOrientation::pivot_left})
        for (int degrees = -80; degrees <= 80; degrees += 5)
        {
            const double x = std::cos(degrees * degree), y = std::sin(degrees * degree);
            const bool right = side == COVArrowArcOrientation::pivot_left;
            const arrow_outline outline = arrow_outline_of({10.0, 20.0, 93.0, 140.0, 2.0, side}, degrees * degree);
            for (std::size_t i = 0; i < outline.size(); ++i)
            {
                const double forward = shape[i].x * x - shape[i].y * y, up = shape[i].x * y + shape[i].y * x;
                ASSERT_NEAR(outline[i].x, right ? 10.0 + forward : 93.0 - forward, 1e-9) << degrees << " " << i;
                ASSERT_NEAR(outline[i].y, 80.0 - up, 1e-9) << degrees << " " << i;
            }
        }
}

} // namespace
} // namespace ov1

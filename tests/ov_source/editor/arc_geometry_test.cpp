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
    // 80 wide, centre at 100: the range's ends lie 40 above and 64 below
    const arc_angles angles = arc_angles_of(80.0, 100.0, 60.0, 164.0);
    EXPECT_NEAR(angles.at(1.0), 30.0 * degree, 1e-12);
    EXPECT_NEAR(80.0 * std::sin(angles.at(0.0)), -64.0, 1e-12);
    EXPECT_NEAR(angles.at(0.5), (angles.at(0.0) + angles.at(1.0)) / 2.0, 1e-12);

    const arc_angles narrow = arc_angles_of(40.0, 100.0, 0.0, 200.0);
    EXPECT_NEAR(narrow.at(0.0), -90.0 * degree, 1e-12);
    EXPECT_NEAR(narrow.at(1.0), 90.0 * degree, 1e-12);
}

TEST(arc_geometry, a_level_arrow_reaches_from_the_pivot_to_the_other_side)
{
    const double barb_x = 77.5 / std::sqrt(1.0 + std::pow(2.5 / 77.5, 2)), barb_y = barb_x * 2.5 / 77.5;
    for (const bool right : {false, true})
    {
        const auto side = right ? COVArrowArcOrientation::pivot_left : COVArrowArcOrientation::pivot_right;
        const double pivot = right ? 10.0 : 93.0, forward = right ? 1.0 : -1.0;
        const arrow_outline outline = arrow_outline_of({10.0, 20.0, 93.0, 140.0, 2.0, side}, 0.0);
        const arc_point expected[] = {{pivot, 82.5},
                                      {pivot + forward * barb_x, 80.0 + barb_y},
                                      {pivot + forward * 80.0, 80.0},
                                      {pivot + forward * barb_x, 80.0 - barb_y},
                                      {pivot, 77.5}};
        for (std::size_t i = 0; i < outline.size(); ++i)
        {
            EXPECT_NEAR(outline[i].x, expected[i].x, 1e-9) << i << right;
            EXPECT_NEAR(outline[i].y, expected[i].y, 1e-9) << i << right;
        }
    }
}

TEST(arc_geometry, an_arrow_keeps_its_shape_as_it_swings)
{
    for (const auto side : {COVArrowArcOrientation::pivot_right, COVArrowArcOrientation::pivot_left})
        for (int degrees = -80; degrees <= 80; degrees += 5)
        {
            SCOPED_TRACE(degrees);
            const arrow_outline level = arrow_outline_of({0.0, 0.0, 63.0, 100.0, 2.0, side}, 0.0);
            const arrow_outline swung = arrow_outline_of({0.0, 0.0, 63.0, 100.0, 2.0, side}, degrees * degree);
            for (std::size_t i = 0; i < level.size(); ++i)
                for (std::size_t j = 0; j < i; ++j)
                    ASSERT_NEAR(std::hypot(swung[i].x - swung[j].x, swung[i].y - swung[j].y),
                                std::hypot(level[i].x - level[j].x, level[i].y - level[j].y), 1e-9);
            ASSERT_NEAR(50.0 - swung[2].y, 60.0 * std::sin(degrees * degree), 1e-9) << "positive is up";
        }
}

} // namespace
} // namespace ov1

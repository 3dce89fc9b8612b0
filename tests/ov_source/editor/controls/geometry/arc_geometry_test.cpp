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

} // namespace
} // namespace ov1

#include "standalone/jobs/grade_text.h"

#include <gtest/gtest.h>
#include <vector>

namespace ov1
{
namespace
{

const std::vector<grade_value> changed{
    {"Global Bypass", param_type::boolean, 1.0f, false},
    {"Sky Angle", param_type::continuous, 90.0f, false},
    {"Sky Strength", param_type::continuous, 0.0f, true},
    {"Mids Lightness", param_type::continuous, -0.1f, false},
};

TEST(grade_text, says_what_differs_from_the_defaults)
{
    EXPECT_EQ(grade_options(changed), "-s \"Sky Angle=90\" -s \"Mids Lightness=-0.1\"") << "the bypass is no grade";
    EXPECT_EQ(grade_lines(changed), "Global Bypass=true\nSky Angle=90\nMids Lightness=-0.1\n");
    EXPECT_EQ(grade_options({}), "");
}

TEST(grade_text, json_holds_every_number_and_switches_if_wanted)
{
    EXPECT_EQ(grade_json(changed, false), R"({"Sky Angle":90,"Sky Strength":0,"Mids Lightness":-0.1})");
    EXPECT_EQ(grade_json(changed, true),
              R"({"Global Bypass":true,"Sky Angle":90,"Sky Strength":0,"Mids Lightness":-0.1})");
}

} // namespace
} // namespace ov1

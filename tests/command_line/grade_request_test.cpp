#include "command_line/grade_request.h"

#include "command_line/argument_parser.h"
#include "command_line/failure_line.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

const std::vector<parameter_info> table{
    {"Global Bypass", param_type::boolean, 0, 1, 0},
    {"Shadows Hue", param_type::continuous, 0, 360, 0},
    {"Shadows Chroma", param_type::continuous, 0, 100, 0},
    {"Sky Angle", param_type::continuous, 0, 360, 0},
    {"Sky Strength", param_type::continuous, 0, 100, 0},
    {"Steps", param_type::integral, -3, 3, 0},
    {"Tint", param_type::color, 0, 0, 0},
};

/// The failure lines of a request, or the assignments where there are none.
std::string resolved(const grade_request& request)
{
    const auto [assignments, failures] = resolve_grade(request, table);
    std::string text;
    if (failures.empty())
        for (const assignment& a : assignments)
            text += std::to_string(a.parameter) + '=' + std::to_string(static_cast<int>(a.value * 10)) + ' ';
    for (const failure& why : failures)
        text += failure_line(why) + '\n';
    return text;
}

TEST(grade_request, reads_settings_wheels_and_pads_and_says_what_is_wrong_with_them)
{
    const std::string two = ": needs two numbers separated by a comma (write ";
    const std::tuple<const char*, const char*, std::string> rows[] = {
        {"--set", "Sky Strength=60.5", "4=605 "},
        {"--set", "sky-strength = 60", "4=600 "},
        {"--set", "SKY_STRENGTH=100", "4=1000 "},
        {"--set", "skystrength=0", "4=0 "},
        {"--set", "Steps=-3", "5=-30 "},
        {"--set", "global bypass=On", "0=10 "},
        {"--set", "Sky Strenght=60", "\"Sky Strenght\": no such parameter (did you mean \"Sky Strength\"?)\n"},
        {"--set", "Zoom=1", "\"Zoom\": no such parameter (\"veridial params\" lists them)\n"},
        {"--set", "=1", "no such parameter (\"veridial params\" lists them)\n"},
        {"--set", "Sky Strength=160", "\"Sky Strength\": 160 is out of range (0 to 100)\n"},
        {"--set", "Sky Strength=-0.01", "\"Sky Strength\": -0.01 is out of range (0 to 100)\n"},
        {"--set", "Sky Strength=60,5", "\"Sky Strength\": \"60,5\" is not a number (write 60.5)\n"},
        {"--set", "Sky Strength=nan", "\"Sky Strength\": \"nan\" is not a number\n"},
        {"--set", "Sky Strength=", "\"Sky Strength\": a number is missing\n"},
        {"--set", "Sky Strength=1=2", "\"Sky Strength\": \"1=2\" is not a number\n"},
        {"--set", "Sky Strength", "\"--set Sky Strength\": has no \"=\" (write \"Name=value\")\n"},
        {"--set", "Steps=1.5", "\"Steps\": \"1.5\" is not a whole number\n"},
        {"--set", "Tint=#ff0000", "\"Tint\": cannot be set on the command line\n"},
        {"--set", "Global Bypass=2",
         "\"Global Bypass\": unknown value \"2\" (one of true, false, on, off, yes, no, 1, 0)\n"},
        {"--wheel", "shadows=220,40", "1=2200 2=400 "},
        {"--wheel", "Shadows=220, 40", "1=2200 2=400 "},
        {"--sky", "90,60.5", "3=900 4=605 "},
        {"--wheel", "shadow=1,2", "\"--wheel shadow=1,2\": unknown value \"shadow\" (did you mean \"shadows\"?)\n"},
        {"--wheel", "shadows", "\"--wheel shadows\": has no \"=\" (write shadows=HUE,CHROMA)\n"},
        {"--wheel", "shadows=220", "\"--wheel shadows=220\"" + two + "HUE,CHROMA, with decimal points)\n"},
        {"--wheel", "shadows=361,101",
         "\"Shadows Hue\": 361 is out of range (0 to 360)\n\"Shadows Chroma\": 101 is out of range (0 to 100)\n"},
        {"--sky", "90,60,5", "\"--sky 90,60,5\"" + two + "ANGLE,STRENGTH, with decimal points)\n"},
        {"--sky", "90,", "\"Sky Strength\": a number is missing\n"},
    };
    for (const auto& [option, text, result] : rows)
    {
        SCOPED_TRACE(text);
        grade_request request;
        argument_parser parser("", "", "");
        add_grade_options(parser, request);
        ASSERT_TRUE(parser.parse(std::vector<std::string>{option, text}));
        EXPECT_EQ(resolved(request), result);
    }
}

TEST(grade_request, settings_come_last_in_their_own_order)
{
    grade_request request;
    request.settings = {"Sky Strength=1", "Global Bypass=off", "Sky Strength=2"};
    request.wheels = {"shadows=1,2", "shadows=3,4"};
    request.sky = "5,6";
    request.bypass = true;
    EXPECT_EQ(resolved(request), "1=10 2=20 1=30 2=40 3=50 4=60 0=10 4=10 0=0 4=20 ");
}

} // namespace
} // namespace ov1

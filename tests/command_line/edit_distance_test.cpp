#include "command_line/choice.h"
#include "command_line/edit_distance.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(edit_distance, counts_the_fewest_steps)
{
    const std::tuple<const char*, const char*, std::size_t> rows[] = {
        {"", "", 0},       {"", "abc", 3},
        {"hue", "hue", 0}, {"kitten", "sitting", 3},
        {"ab", "ba", 1},   {"strenght", "strength", 1},
        {"ca", "abc", 3}, // no character is touched twice
    };
    for (const auto& [x, y, steps] : rows)
    {
        SCOPED_TRACE(std::string(x) + " " + y);
        EXPECT_EQ(edit_distance(x, y), steps);
        EXPECT_EQ(edit_distance(y, x), steps);
    }
}

TEST(edit_distance, suggests_what_was_meant_and_nothing_far_off)
{
    const std::vector<std::string> names{"Sky Angle",   "Sky Strength", "Skin Angle",    "Master Hue",
                                         "Shadows Hue", "Mids Hue",     "Highlights Hue"};
    const std::pair<const char*, const char*> rows[] = {
        {"Sky Strenght", "did you mean \"Sky Strength\"?"},
        {"sky-strenth", "did you mean \"Sky Strength\"?"},
        {"sky", "did you mean \"Sky Angle\" or \"Sky Strength\"?"},
        {"Angle", "did you mean \"Sky Angle\" or \"Skin Angle\"?"},
        {"Ski Angle", "did you mean \"Sky Angle\" or \"Skin Angle\"?"},
        {"Skin Angel", "did you mean \"Skin Angle\"?"},
        {"hue", ""}, // four have it
        {"contrast", ""},
        {"", ""},
        {"s", ""},
    };
    for (const auto& [typed, hint] : rows)
    {
        SCOPED_TRACE(typed);
        EXPECT_EQ(did_you_mean(typed, names), hint);
    }
}

TEST(choice, takes_a_word_in_any_case_and_lists_the_words_otherwise)
{
    constexpr std::array<choice<int>, 3> words{{{"auto", 1}, {"none", 2}, {"linear", 3}}};
    const auto read = read_choice(" Linear", words);
    EXPECT_TRUE(read && *read == 3);
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"linaer", "unknown value \"linaer\"", "did you mean \"linear\"?"},
        {"x", "unknown value \"x\"", "one of auto, none, linear"},
        {"", "a value is missing", "one of auto, none, linear"},
    };
    for (const auto& [text, reason, hint] : rows)
    {
        SCOPED_TRACE(text);
        const auto wrong = read_choice(text, words);
        ASSERT_FALSE(wrong);
        EXPECT_EQ(wrong.error(), (failure{failure_kind::usage, "", reason, hint}));
    }
}

} // namespace
} // namespace ov1

#include "command_line/number.h"

#include <gtest/gtest.h>
#include <locale>

namespace ov1
{
namespace
{

/// The decimal comma of many desktops.
struct comma : std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
};

TEST(number, reads_finite_numbers_with_a_point)
{
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new comma));
    const std::pair<const char*, double> rows[] = {
        {"60", 60}, {"-0.5", -0.5}, {"+7", 7}, {".5", 0.5}, {"1e2", 100}, {" 3 ", 3}, {"60.5", 60.5},
    };
    for (const auto& [text, expected] : rows)
    {
        SCOPED_TRACE(text);
        const auto value = read_number(text);
        ASSERT_TRUE(value);
        EXPECT_EQ(*value, expected);
    }
    EXPECT_EQ(number_text(0.1f), "0.1");
    EXPECT_EQ(number_text(-60.0), "-60");
    std::locale::global(before);
}

TEST(number, refuses_what_is_none_and_helps_where_it_can)
{
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"60,5", "\"60,5\" is not a number", "write 60.5"},
        {"60%", "\"60%\" is not a number", "write 60"},
        {"90\u00B0", "\"90\u00B0\" is not a number", "write 90"},
        {"1,000,000", "\"1,000,000\" is not a number", ""},
        {"", "a number is missing", ""},
        {" ", "a number is missing", ""},
        {"nan", "\"nan\" is not a number", ""},
        {"-inf", "\"-inf\" is not a number", ""},
        {"1e999", "\"1e999\" is not a number", ""},
        {"0x10", "\"0x10\" is not a number", ""},
        {"6 0", "\"6 0\" is not a number", ""},
        {"+-1", "\"+-1\" is not a number", ""},
        {"++1", "\"++1\" is not a number", ""},
        {"sixty", "\"sixty\" is not a number", ""},
    };
    for (const auto& [text, reason, hint] : rows)
    {
        SCOPED_TRACE(text);
        const auto value = read_number(text);
        ASSERT_FALSE(value);
        EXPECT_EQ(value.error(), (failure{failure_kind::usage, "", reason, hint}));
    }
}

TEST(number, is_refused_beyond_its_range_and_never_clamped)
{
    const std::tuple<const char*, bool, double, const char*, const char*> rows[] = {
        {"-10", false, -10, "", ""},
        {"10", true, 10, "", ""},
        {"2.5", false, 2.5, "", ""},
        {"10.001", false, 0, "10.001 is out of range", "-10 to 10"},
        {"-10.001", false, 0, "-10.001 is out of range", "-10 to 10"},
        {"2.5", true, 0, "\"2.5\" is not a whole number", ""},
        {"11", true, 0, "11 is out of range", "-10 to 10"},
    };
    for (const auto& [text, is_whole, expected, reason, hint] : rows)
    {
        SCOPED_TRACE(text);
        const auto check = [&, expected = expected, reason = reason, hint = hint](const auto& read)
        {
            ASSERT_EQ(static_cast<bool>(read), *reason == '\0');
            if (read)
                EXPECT_EQ(*read, expected);
            else
                EXPECT_EQ(read.error(), (failure{failure_kind::usage, "", reason, hint}));
        };
        if (is_whole)
            check(read_whole_number_within(text, -10, 10));
        else
            check(read_number_within(text, -10, 10));
    }
}

} // namespace
} // namespace ov1

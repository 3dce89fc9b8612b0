#include "command_line/number.h"

#include <gtest/gtest.h>
#include <locale>

namespace ov1
{
namespace
{

/// The decimal comma of many desktops.
class comma_locale
{
public:
    comma_locale()
        : before(std::locale::global(std::locale(std::locale::classic(), new comma)))
    {
    }
    ~comma_locale() { std::locale::global(before); }

private:
    struct comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
    };
    std::locale before;
};

TEST(number, reads_finite_numbers_with_a_point)
{
    const comma_locale desktop;
    const struct
    {
        const char* text;
        double value;
    } rows[] = {
        {"60", 60}, {"-0.5", -0.5}, {"+7", 7}, {".5", 0.5}, {"1e2", 100}, {" 3 ", 3}, {"60.5", 60.5},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        double value = 0;
        problem why;
        EXPECT_TRUE(read_number(row.text, value, why));
        EXPECT_EQ(value, row.value);
    }
    EXPECT_EQ(number_text(0.1f), "0.1");
    EXPECT_EQ(number_text(-60.0), "-60");
}

TEST(number, refuses_what_is_none_and_helps_where_it_can)
{
    const struct
    {
        const char *text, *reason, *hint;
    } rows[] = {
        {"60,5", "\"60,5\" is no number", "write 60.5"},
        {"60%", "\"60%\" is no number", "write 60"},
        {"90\u00B0", "\"90\u00B0\" is no number", "write 90"},
        {"1,000,000", "\"1,000,000\" is no number", ""},
        {"", "a number is missing", ""},
        {" ", "a number is missing", ""},
        {"nan", "\"nan\" is no number", ""},
        {"-inf", "\"-inf\" is no number", ""},
        {"1e999", "\"1e999\" is no number", ""},
        {"0x10", "\"0x10\" is no number", ""},
        {"6 0", "\"6 0\" is no number", ""},
        {"+-1", "\"+-1\" is no number", ""},
        {"++1", "\"++1\" is no number", ""},
        {"sixty", "\"sixty\" is no number", ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        double value = 7;
        problem why;
        EXPECT_FALSE(read_number(row.text, value, why));
        EXPECT_EQ(value, 7);
        EXPECT_EQ(why.reason, row.reason);
        EXPECT_EQ(why.hint, row.hint);
    }
}

TEST(number, is_refused_beyond_its_range_and_never_clamped)
{
    double value = 7;
    problem why;
    EXPECT_TRUE(read_number_within("-10", -10, 10, value, why) && value == -10);
    EXPECT_TRUE(read_number_within("10", -10, 10, value, why) && value == 10);
    EXPECT_FALSE(read_number_within("10.001", -10, 10, value, why));
    EXPECT_EQ(why.reason, "10.001 is out of range");
    EXPECT_EQ(why.hint, "-10 to 10");
    EXPECT_FALSE(read_number_within("-10.001", -10, 10, value, why));
    EXPECT_EQ(value, 10);
    int whole = 7;
    EXPECT_FALSE(read_whole_number_within("2.5", 0, 10, whole, why));
    EXPECT_EQ(why.reason, "\"2.5\" is no whole number");
    EXPECT_FALSE(read_whole_number_within("11", 0, 10, whole, why));
    EXPECT_EQ(whole, 7);
    EXPECT_TRUE(read_whole_number_within("3", 0, 10, whole, why) && whole == 3);
}

} // namespace
} // namespace ov1

#include "framework/parameters/parameter_text.h"

#include <gtest/gtest.h>
#include <locale>
#include <vector>

namespace ov1
{
namespace
{

template <typename T>
param_value value(param_type type, T v, param_bound min = {}, param_bound max = {})
{
    return {type, param_cell::of(v), {}, min, max};
}
param_value continuous(float v)
{
    return value(param_type::continuous, v, param_bound::of(-100.0f), param_bound::of(2e6f));
}
param_value integral(int v) { return value(param_type::integral, v, param_bound::of(-10), param_bound::of(2000000)); }
param_value boolean(bool v) { return value(param_type::boolean, v); }
param_value color(const param_argb& v) { return value(param_type::color, v); }

void expect_each_kind_written_and_read()
{
    const std::tuple<param_value, int, std::string> written[] = {
        {continuous(0.123456f), 3, "0.123"},
        {continuous(1234.5f), 3, "1.23e+03"},
        {continuous(1234.5f), 6, "1234.5"},
        {continuous(50.0f), 3, "50"},
        {integral(-7), 3, "-7"},
        {integral(1234567), 3, "1234567"},
        {boolean(true), 3, "true"},
        {boolean(false), 3, "false"},
        {color({1, 0, 0.5f, 1}), 3, "#ff 07fff"},
        {color({0.0588f, 0.0667f, 1, 0.999f}), 3, "# e11fffe"}}; // 14.99, 17.01, 255 and 254.7, cut
    for (const auto& [v, precision, expected] : written)
    {
        SCOPED_TRACE(expected);
        std::string text;
        EXPECT_TRUE(text_from_value(v, precision, text));
        EXPECT_EQ(text, expected);
    }
    const param_value orange = color({128 / 255.0f, 1, 16 / 255.0f, 2 / 255.0f});
    const std::pair<const char*, param_value> read[] = {{"1.5", continuous(1.5f)},
                                                        {"  -7.25 %", continuous(-7.25f)},
                                                        {"1,5", continuous(1)},
                                                        {"1e3", continuous(1000)},
                                                        {"1.234,5", continuous(1.234f)},
                                                        {"-1e9", continuous(-100)},
                                                        {"12.9", integral(12)},
                                                        {"-99", integral(-10)},
                                                        {"1.234", integral(1)},
                                                        {" true", boolean(true)},
                                                        {"false", boolean(false)},
                                                        {"#80FF1002", orange},
                                                        {"80 ff 10 02", orange},
                                                        {"0x80ff1002", orange},
                                                        {"2", color({0, 0, 0, 2 / 255.0f})}};
    for (const auto& [text, expected] : read)
    {
        SCOPED_TRACE(text);
        param_value v = expected;
        v.value = {};
        EXPECT_TRUE(value_from_text(text, v));
        EXPECT_EQ(v.value, expected.value);
    }
    const std::pair<param_value, std::vector<const char*>> refused[] = {
        {continuous(5), {"1e99", "abc", "", "nan", "inf"}},
        {integral(5), {"99999999999", "x1", ""}},
        {boolean(true), {"1", "False", "falsch", ""}},
        {color({0, 0, 0, 1}), {"#180ff1002", "#, xyz", ""}},
        {{}, {"1"}}};
    for (const auto& [before, texts] : refused)
        for (const char* text : texts)
        {
            param_value v = before;
            EXPECT_FALSE(value_from_text(text, v)) << text;
            EXPECT_EQ(v.value, before.value) << text;
        }
}

TEST(parameter_text, writes_and_reads_each_kind)
{
    expect_each_kind_written_and_read();
    std::string text = "as it was";
    EXPECT_FALSE(text_from_value({}, 3, text));
    EXPECT_EQ(text, "invalid");
}

TEST(parameter_text, is_the_same_under_a_german_locale)
{
    const std::locale before = std::locale::global(std::locale("de_DE.UTF-8"));
    expect_each_kind_written_and_read();
    std::locale::global(before);
}

} // namespace
} // namespace ov1

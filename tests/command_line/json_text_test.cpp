#include "command_line/failure_line.h"
#include "command_line/json_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

TEST(json_text, separates_and_nests)
{
    json_text json;
    json.begin_array().value(1).begin_object().key("a").value("x").key("b").begin_array().end().key("c").value(true);
    json.end().begin_object().end().value(0.1f).value(std::numeric_limits<double>::infinity()).end();
    EXPECT_EQ(json.text(), R"([1,{"a":"x","b":[],"c":true},{},0.1,null])");
}

TEST(json_text, and_failure_lines_escape_what_must_be_and_mark_what_is_no_text)
{
    // Sequences that are no UTF-8, and their neighbours that are: RFC 3629, sections 3 and 4.
    const std::tuple<const char*, const char*, const char*> texts[] = {
        {"a\"b\\c/", R"("a\"b\\c/")", "\"a\"b\\c/\""},
        {"\n\t\x01", R"("\u000a\u0009\u0001")", R"("\x0a\x09\x01")"},
        {"\x7F", "\"\x7F\"", R"("\x7f")"},
        {"gr\u00FCn \u20AC \U0001F3A8", "\"gr\u00FCn \u20AC \U0001F3A8\"", "\"gr\u00FCn \u20AC \U0001F3A8\""},
        {"\xFC", "\"\uFFFD\"", R"("\xfc")"},
        {"\xC3", "\"\uFFFD\"", R"("\xc3")"},
        {"\xC3x", "\"\uFFFDx\"", R"("\xc3x")"},
        {"\xC1\x81", "\"\uFFFD\uFFFD\"", R"("\xc1\x81")"},
        {"\xE0\x9F\xBF", "\"\uFFFD\uFFFD\uFFFD\"", R"("\xe0\x9f\xbf")"},
        {"\xE0\xA0\x80", "\"\xE0\xA0\x80\"", "\"\xE0\xA0\x80\""},
        {"\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\"", R"("\xed\xa0\x80")"},
        {"\xE2\x82", "\"\uFFFD\uFFFD\"", R"("\xe2\x82")"},
        {"\xF0\x8F\xBF\xBF", "\"\uFFFD\uFFFD\uFFFD\uFFFD\"", R"("\xf0\x8f\xbf\xbf")"},
        {"\xF4\x8F\xBF\xBF", "\"\xF4\x8F\xBF\xBF\"", "\"\xF4\x8F\xBF\xBF\""},
        {"\xF4\x90\x80\x80", "\"\uFFFD\uFFFD\uFFFD\uFFFD\"", R"("\xf4\x90\x80\x80")"},
    };
    for (const auto& [text, json, line] : texts)
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(json_text().value(text).text(), json);
        EXPECT_EQ(in_quotes(text), line);
    }
    EXPECT_EQ(failure_line({failure_kind::usage, "a", "no such file", "look again"}),
              "\"a\": no such file (look again)");
    EXPECT_EQ(failure_line({failure_kind::usage, "", "no command", ""}), "no command");
    EXPECT_EQ(failure_line({failure_kind::usage, "", "two\nlines", ""}), "two\\x0alines");
}

} // namespace
} // namespace ov1

#include "platform/settings_text.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

TEST(settings_text, values_and_keys_of_any_bytes_come_back)
{
    std::string all;
    bytes octets;
    for (int i = 0; i < 256; ++i)
    {
        all += static_cast<char>(i);
        octets.push_back(static_cast<std::uint8_t>(i));
    }
    const struct
    {
        const char* name;
        std::string key;
        setting value;
    } rows[] = {
        {"every byte in a string", "s", all},
        {"every byte in bytes", "b", octets},
        {"every byte in a key", all, 7u},
        {"an empty string", "es", std::string()},
        {"empty bytes", "eb", bytes()},
        {"the largest number", "n", 0xFFFFFFFFu},
        {"blanks at both ends", " k ", std::string(" v ")},
    };
    settings_text text;
    for (const auto& row : rows)
        text.set(row.key, row.value);
    const settings_text again(text.to_text());
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        ASSERT_NE(again.find(row.key), nullptr);
        EXPECT_EQ(*again.find(row.key), row.value);
    }
}

TEST(settings_text, passes_over_damaged_lines_and_keeps_them)
{
    const struct
    {
        const char* name;
        const char* line;
    } rows[] = {
        {"comment", "# uint32 k 1"},
        {"no fields", ""},
        {"kind alone", "uint32"},
        {"no value", "uint32 k"},
        {"no number", "uint32 k x"},
        {"something behind the number", "uint32 k 1 "},
        {"number too large", "uint32 k 4294967296"},
        {"negative", "uint32 k -1"},
        {"odd digits", "bytes k 00f"},
        {"no digits", "bytes k 0g"},
        {"signed digits", "bytes k +1"},
        {"a broken escape in the value", "string k a%2"},
        {"a broken escape in the key", "string k%zz a"},
        {"a later kind", "float64 k 1.5"},
        {"no key", "string  a"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const std::string before = "uint32 a 1\n" + std::string(row.line) + "\nstring b x\n";
        settings_text text(before);
        EXPECT_EQ(text.to_text(), before);
        EXPECT_EQ(text.find("k"), nullptr);
        EXPECT_EQ(text.find(""), nullptr);
        ASSERT_NE(text.find("b"), nullptr) << "the line after the damage is read";
        text.set("a", 2u);
        EXPECT_EQ(text.to_text(), "uint32 a 2\n" + std::string(row.line) + "\nstring b x\n");
    }
}

TEST(settings_text, one_key_holds_one_value)
{
    settings_text text("uint32 k 1\nuint32 other 5\r\nstring k late");
    EXPECT_EQ(*text.find("k"), setting(std::string("late"))) << "the last line counts";
    EXPECT_EQ(*text.find("other"), setting(5u)) << "line ends of other systems";
    text.set("k", 3u);
    EXPECT_EQ(text.to_text(), "uint32 k 3\nuint32 other 5\r\n");
    text.remove("k");
    EXPECT_EQ(text.find("k"), nullptr);
    EXPECT_NE(text.find("other"), nullptr);
}

} // namespace
} // namespace ov1

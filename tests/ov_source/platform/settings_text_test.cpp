#include "platform/settings_text.h"

#include <gtest/gtest.h>
#include <numeric>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

TEST(settings_text, values_and_keys_of_any_bytes_are_read_back)
{
    std::string all(256, 'x');
    std::iota(all.begin(), all.end(), '\0');
    const std::pair<std::string, setting> rows[] = {{"every byte", all},
                                                    {"octets", bytes(all.begin(), all.end())},
                                                    {all, 7u},
                                                    {"empty", std::string()},
                                                    {"no octets", bytes()},
                                                    {"the largest", 0xFFFFFFFFu},
                                                    {" blanks at both ends ", std::string(" v ")}};
    settings_text text;
    for (const auto& [key, value] : rows)
        text.set(key, value);
    const settings_text again(text.to_text());
    for (const auto& [key, value] : rows)
    {
        SCOPED_TRACE(key);
        ASSERT_NE(again.find(key), nullptr);
        EXPECT_EQ(*again.find(key), value);
    }
}

TEST(settings_text, ignores_damaged_lines_and_keeps_them)
{
    for (const std::string line :
         {"# uint32 k 1", "", "uint32", "uint32 k", "uint32 k x", "uint32 k 1 ", "uint32 k 4294967296", "uint32 k -1",
          "bytes k 00f", "bytes k 0g", "bytes k +1", "string k a%2", "string k%zz a", "float64 k 1.5", "string  a"})
    {
        SCOPED_TRACE(line);
        const std::string before = "uint32 a 1\n" + line + "\nstring b x\n";
        settings_text text(before);
        EXPECT_EQ(text.to_text(), before);
        EXPECT_EQ(text.find("k"), nullptr);
        EXPECT_EQ(text.find(""), nullptr);
        ASSERT_NE(text.find("b"), nullptr) << "the line after the damage is read";
        text.set("a", 2u);
        EXPECT_EQ(text.to_text(), "uint32 a 2\n" + line + "\nstring b x\n");
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

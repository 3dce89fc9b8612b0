#include "editor/controls/modal/key_table.h"
#include "editor/controls/widgets/value_readout.h"
#include "editor/controls/widgets/value_text.h"

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace ov1
{
namespace
{

TEST(key_table, every_stroke_has_one_action_and_every_row_a_text_in_both_languages)
{
    std::set<key_action> actions;
    for (const key_row& row : get_key_table())
    {
        EXPECT_TRUE(actions.insert(row.action).second) << row.text;
        for (const std::string text : {row.keys, row.text})
            EXPECT_TRUE(text.find("{en:") == 0 && text.find("}{de:") != std::string::npos) << text;
        for (const key_stroke& stroke : row.strokes)
        {
            VSTGUI::KeyboardEvent event;
            event.virt = stroke.virt;
            event.character = stroke.character;
            if (stroke.with_shift)
                event.modifiers.add(VSTGUI::ModifierKey::Shift);
            if (stroke.with_control)
                event.modifiers.add(VSTGUI::ModifierKey::Control);
            EXPECT_EQ(find_key_action(event), row.action) << row.text;
            event.modifiers.add(VSTGUI::ModifierKey::Alt);
            EXPECT_EQ(find_key_action(event), std::nullopt) << row.text;
        }
    }
    VSTGUI::KeyboardEvent up(VSTGUI::EventType::KeyUp);
    up.character = 'b';
    EXPECT_EQ(find_key_action(up), std::nullopt) << "a release is no action";
}

TEST(value_text, writes_at_most_one_decimal_and_reads_numbers_separated_by_blanks_or_a_comma)
{
    EXPECT_EQ(pad_value_text(212.44f, 34.96f), "212.4\u00B0, 35 %");
    EXPECT_EQ(plain_value_text(-0.04f), "0");
    for (const auto& [text, is_read] : {std::pair("1,2", true),
                                        {"1 , 2", true},
                                        {"\t1.5\t-2e1 ", true},
                                        {"1,,2", false},
                                        {"1", false},
                                        {"1 2 3", false},
                                        {"+-1 2", false},
                                        {"1 inf", false},
                                        {"", false}})
    {
        std::array<float, 2> values{7, 7};
        EXPECT_EQ(read_typed_values(text, values), is_read) << text;
        EXPECT_EQ(values[1] == 7, !is_read) << text;
    }
}

} // namespace
} // namespace ov1

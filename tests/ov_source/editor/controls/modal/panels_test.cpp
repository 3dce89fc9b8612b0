#include "editor/controls/modal/modal_panel.h"
#include "editor/controls/modal/tooltip_layer.h"
#include "editor/controls/style/text_lines.h"
#include "ov_source/editor/controls/widgets/control_stage.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(text_lines, break_at_blanks_and_within_words_that_are_too_wide)
{
    const std::tuple<const char*, double, std::vector<std::string>> cases[] = {
        {"one two three", 7.0, {"one two", "three"}},
        {"one two three", 6.9, {"one", "two", "three"}},
        {"  a  b ", 3.0, {"a b"}},
        {"a\n\nb", 9.0, {"a", "", "b"}},
        {"of Färbungen", 4.0, {"of", "Färb", "unge", "n"}},
        {"äö", 0.5, {"ä", "ö"}}, // never less than a character
        {"", 5.0, {}},
    };
    const auto characters = [](std::string_view text)
    { return static_cast<double>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; })); };
    for (const auto& [text, limit, expected] : cases)
        EXPECT_EQ(text_lines(text, limit, characters), expected) << text;
}

struct modal_stage : control_stage
{
    /// Without a message the box is 380 x 112 in the middle of the 400 x 300.
    void ask(std::optional<std::string> name = {})
    {
        EXPECT_TRUE(show_modal_panel(*frame, {"Delete?", "", "Yes", "No", name},
                                     [this](const modal_answer& answer)
                                     {
                                         EXPECT_EQ(frame->getModalView(), nullptr) << "another may be shown now";
                                         answers += (answer.confirmed ? "yes " : "no ") + answer.name;
                                     }));
    }
    void click(double x, double y)
    {
        press(x, y);
        release(x, y);
    }
    std::string answers;
};

TEST(modal_panel, answers_once_to_buttons_return_and_escape_and_to_nothing_else)
{
    modal_stage stage;
    stage.add(new VSTGUI::CTextButton({0.0, 0.0, 50.0, 50.0}, &stage.log, 1, "beneath"));
    const std::pair<void (*)(modal_stage&), const char*> cases[] = {
        {[](modal_stage& s) { s.click(340.0, 170.0); }, "yes "},
        {[](modal_stage& s) { s.click(230.0, 170.0); }, "no "},
        {[](modal_stage& s) { s.type(VSTGUI::VirtualKey::Return); }, "yes "},
        {[](modal_stage& s) { s.type(VSTGUI::VirtualKey::Escape); }, "no "},
    };
    for (const auto& [act, expected] : cases)
    {
        stage.ask();
        stage.click(20.0, 20.0);
        EXPECT_TRUE(stage.type(VSTGUI::VirtualKey::Delete)) << "no key gets past";
        EXPECT_EQ(stage.answers, "");
        act(stage);
        act(stage);
        EXPECT_EQ(std::exchange(stage.answers, {}), expected);
    }
    EXPECT_EQ(stage.log.take(), "");

    stage.frame->onActivate(false); // the toolkit's text field needs a window for its caret
    for (const auto& [name, expected] : {std::pair(" Warm evening  ", "yes Warm evening"), {"  ", ""}})
    {
        stage.ask(name);
        stage.type(VSTGUI::VirtualKey::Return);
        EXPECT_EQ(std::exchange(stage.answers, {}), expected);
    }
}

TEST(tooltip_layer, appears_after_a_rest_and_disappears_at_the_next_move_or_press)
{
    control_stage stage;
    auto& button = stage.add(new VSTGUI::CTextButton({0.0, 0.0, 300.0, 200.0}, &stage.log, 1, ""));
    button.setTooltipText("text");
    tooltip_layer tips(*stage.frame);
    const auto move = [&](double x) { stage.send(VSTGUI::MouseMoveEvent({x, 20.0})); };
    const auto is_shown_at = [&](std::uint64_t ms) { return tips.idle(ms), tips.shown() != nullptr; };
    move(20.0);
    EXPECT_FALSE(is_shown_at(1000) || is_shown_at(4000));
    move(21.0);
    EXPECT_FALSE(is_shown_at(4010) || is_shown_at(8009));
    EXPECT_TRUE(is_shown_at(8010));
    move(22.0);
    EXPECT_FALSE(is_shown_at(8020));
    EXPECT_TRUE(is_shown_at(13000));
    const VSTGUI::CPoint on_tip = tips.shown()->getViewSize().getCenter();
    stage.press(on_tip.x, on_tip.y);
    EXPECT_EQ(stage.log.take(), "begin ") << "the press is for the button beneath";
    stage.release(on_tip.x, on_tip.y);
    EXPECT_FALSE(is_shown_at(13100) || is_shown_at(99000)) << "not after a press";
    move(23.0);
    EXPECT_FALSE(is_shown_at(100000));
    EXPECT_TRUE(is_shown_at(104000));
    move(350.0);
    EXPECT_FALSE(is_shown_at(104000) || is_shown_at(120000)) << "the view was left";
    move(24.0);
    tips.idle(130000);
    stage.frame->removeView(&button);
    EXPECT_FALSE(is_shown_at(140000)) << "the view is gone";
}

} // namespace
} // namespace ov1

#include "editor/panel_input.h"

#include "editor/controls/widgets/value_text.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "ov_source/editor/editor_stage.h"

#include <cmath>

namespace ov1
{
namespace
{

using VSTGUI::VirtualKey;
const VSTGUI::Modifiers none, shift(VSTGUI::ModifierKey::Shift), control_key(VSTGUI::ModifierKey::Control);

struct input_stage : editor_stage
{
    input_stage() { frame->onActivate(true); } // else no key arrives

    bool key(VirtualKey virt, char32_t character = 0, VSTGUI::Modifiers keys = {})
    {
        VSTGUI::KeyboardEvent event;
        event.virt = virt;
        event.character = character;
        return send(std::move(event), keys);
    }
    std::string focused() const
    {
        const auto* const stop = input().get_focus().current();
        return stop ? stop->parameters.front().lock()->get_name() : std::string();
    }
    void give_focus_to(const std::string& parameter)
    {
        for (int i = 0; i < 40 && focused() != parameter; ++i)
            key(VirtualKey::Tab);
        ASSERT_EQ(focused(), parameter);
    }
    panel_input& input() const { return ui->get_input(); }
};

TEST(panel_input, tab_visits_every_control_panel_by_panel_and_starts_over)
{
    input_stage stage;
    std::vector<std::string> expected = {"Master Hue", "Global Chroma", "Global Luminance"};
    for (const std::string zone : {"Shadows", "Mids", "Highlights"})
        for (const char* control : {" Hue", " Range", " Lightness", " Smoothness", " Saturation"})
            expected.push_back(zone + control);
    for (const char* last : {"Greenery Angle", "Sky Angle", "Skin Angle", "Protect Skin Tones", "Skin Tone Brightness",
                             "Film Contrast Angle", "Master Hue"})
        expected.push_back(last);
    for (const std::string& name : expected)
    {
        EXPECT_TRUE(stage.key(VirtualKey::Tab));
        EXPECT_EQ(stage.focused(), name);
        EXPECT_TRUE(stage.input().get_focus().is_ring_shown());
    }
    stage.key(VirtualKey::Tab, 0, shift);
    EXPECT_EQ(stage.focused(), "Film Contrast Angle");
    stage.press_on(stage.pad(panel_slot::sky), 0, 0);
    EXPECT_FALSE(stage.input().get_focus().is_ring_shown()) << "a press needs no focus ring";
    EXPECT_EQ(stage.focused(), "Sky Angle");
}

TEST(panel_input, arrows_nudge_by_a_hundredth_and_with_shift_by_a_thousandth)
{
    struct nudge_case
    {
        const char* control;
        VirtualKey arrow;
        VSTGUI::Modifiers keys;
        const char* parameter;
        float value;
    };
    const float up_from_left = std::sqrt(30.0f * 30 + 1);
    for (const auto& [control, arrow, keys, parameter, value] :
         {nudge_case{"Sky Angle", VirtualKey::Left, none, "Sky Strength", 31},
          {"Sky Angle", VirtualKey::Right, shift, "Sky Strength", 29.9f},
          {"Sky Angle", VirtualKey::Up, none, "Sky Strength", up_from_left},
          {"Sky Angle", VirtualKey::Down, none, "Sky Angle", 90 + std::atan(1 / 30.0f) * 57.29578f},
          {"Global Chroma", VirtualKey::Up, none, "Global Chroma", 1},
          {"Global Chroma", VirtualKey::Left, shift, "Global Chroma", -0.1f},
          {"Mids Range", VirtualKey::Right, none, "Mids Range", 0.1f},
          {"Mids Saturation", VirtualKey::Down, none, "Mids Saturation", -1}})
    {
        SCOPED_TRACE(parameter);
        input_stage stage;
        stage.set("Sky Angle", 90); // left
        stage.set("Sky Strength", 30);
        stage.give_focus_to(control);
        EXPECT_TRUE(stage.key(arrow, 0, keys));
        EXPECT_NEAR(stage.value(parameter), value, 1e-3);
    }
}

TEST(panel_input, nudges_are_one_step_until_a_pause_of_a_second)
{
    input_stage stage;
    const auto nudge_at = [&](std::uint64_t ms)
    {
        stage.key(VirtualKey::Up);
        stage.input().idle(ms);
    };
    stage.give_focus_to("Global Chroma");
    for (const std::uint64_t ms : {100, 1000, 1900})
        nudge_at(ms);
    EXPECT_TRUE(stage.ui->is_editing());
    stage.input().idle(2899);
    nudge_at(2900);
    stage.input().idle(3900);
    EXPECT_FALSE(stage.ui->is_editing());
    EXPECT_EQ(stage.undo_position(), 1);
    nudge_at(4000);
    EXPECT_TRUE(stage.key(VirtualKey::None, 0x1a, control_key)) << "Control-Z, as X11 reports it, ends the undo step";
    EXPECT_NEAR(stage.value("Global Chroma"), 4, 1e-4);
    stage.key(VirtualKey::None, 'z', control_key);
    EXPECT_EQ(stage.value("Global Chroma"), 0);
    stage.key(VirtualKey::None, 'y', control_key);
    EXPECT_NEAR(stage.value("Global Chroma"), 4, 1e-4);
}

TEST(panel_input, resets_are_one_step_each)
{
    input_stage stage;
    stage.set("Sky Angle", 200);
    stage.set("Sky Strength", 40);
    stage.give_focus_to("Sky Angle");
    for (int twice = 0; twice < 2; ++twice)
        EXPECT_TRUE(stage.key(VirtualKey::Delete));
    EXPECT_TRUE(stage.value("Sky Angle") == 0 && stage.value("Sky Strength") == 0);
    EXPECT_EQ(stage.undo_position(), 1) << "the second had nothing to reset";

    stage.set("Mids Range", 5);
    const VSTGUI::CPoint where = stage.at(stage.control("Mids Range"), -20, 30);
    stage.press(where.x, where.y);
    stage.release(where.x, where.y);
    ASSERT_NE(stage.value("Mids Range"), 5) << "the first click of two jumps";
    VSTGUI::MouseDownEvent second(where, VSTGUI::MouseButton::Left);
    second.clickCount = 2;
    stage.send(std::move(second));
    EXPECT_EQ(stage.value("Mids Range"), 0);
    EXPECT_EQ(stage.undo_position(), 2);
    stage.effect->undo();
    EXPECT_EQ(stage.value("Mids Range"), 5);
}

VSTGUI::CTextEdit* find_field(const VSTGUI::CViewContainer& container)
{
    std::vector<VSTGUI::CTextEdit*> found;
    container.getChildViewsOfType<VSTGUI::CTextEdit>(found, true);
    return found.empty() ? nullptr : found.front();
}

TEST(panel_input, typed_values_are_taken_whole_or_not_at_all)
{
    struct entry
    {
        const char* parameter;
        const char* typed;
        bool is_taken;
        std::pair<float, float> values;
    };
    for (const auto& [parameter, typed, is_taken, values] : {entry{"Sky Angle", "212.5, 30", true, {212.5f, 30}},
                                                             {"Sky Angle", " +360 0.25 ", true, {360, 0.25f}},
                                                             {"Sky Angle", "212,5, 30", false, {}},
                                                             {"Sky Angle", "361, 30", false, {}},
                                                             {"Sky Angle", "40", false, {}},
                                                             {"Sky Angle", "40, nan", false, {}},
                                                             {"Global Chroma", "-12.5", true, {-12.5f, 0}},
                                                             {"Global Chroma", "12 %", false, {}},
                                                             {"Global Chroma", "-100.5", false, {}}})
        for (const VirtualKey last : {VirtualKey::Return, VirtualKey::Escape})
        {
            SCOPED_TRACE(typed);
            input_stage stage;
            stage.give_focus_to(parameter);
            const panel_stop stop = *stage.input().get_focus().current();
            stage.frame->onActivate(false); // the toolkit's text field needs a window for its caret
            stage.input().get_values().type_over(stop);
            ASSERT_TRUE(find_field(*stage.frame));
            find_field(*stage.frame)->setText(typed);
            stage.key(VirtualKey::None, 'b');
            stage.key(last);
            EXPECT_FALSE(find_field(*stage.frame));
            const bool changes = is_taken && last == VirtualKey::Return;
            EXPECT_EQ(stage.value(parameter), changes ? values.first : 0);
            EXPECT_EQ(stage.value("Sky Strength"), changes ? values.second : 0);
            EXPECT_EQ(stage.undo_position(), changes ? 1 : 0);
            EXPECT_EQ(stage.input().get_values().get_bubble().get_text().empty(),
                      is_taken || last == VirtualKey::Escape);
        }
}

TEST(panel_input, the_bubble_shows_the_value_during_a_drag)
{
    input_stage stage;
    const auto& bubble = stage.input().get_values().get_bubble();
    const VSTGUI::CPoint where = stage.at(stage.pad(panel_slot::master), 20, -50); // near the toolbar
    stage.press(where.x, where.y);
    EXPECT_EQ(bubble.get_text(), pad_value_text(stage.value("Master Hue"), stage.value("Master Chroma")));
    EXPECT_FALSE(bubble.get_place().pointInside(where));
    stage.release(where.x, where.y);
    EXPECT_EQ(bubble.get_text(), "");
    const VSTGUI::CPoint on_arc = stage.at(stage.control("Shadows Range"), -30, -40);
    stage.press(on_arc.x, on_arc.y);
    EXPECT_EQ(bubble.get_text(), plain_value_text(stage.value("Shadows Range")));
    EXPECT_GE(bubble.get_place().left, 0);
}

TEST(panel_input, keys_do_what_buttons_do_and_are_ignored_during_questions)
{
    input_stage stage;
    stage.key(VirtualKey::None, 'b');
    EXPECT_TRUE(stage.effect->get_bypass());
    stage.key(VirtualKey::None, 'r');
    EXPECT_EQ(stage.undo_position(), 2);
    stage.key(VirtualKey::F1);
    ASSERT_TRUE(stage.frame->getModalView());
    EXPECT_TRUE(stage.key(VirtualKey::None, 'b')) << "only closes the help";
    EXPECT_TRUE(stage.effect->get_bypass());
    EXPECT_FALSE(stage.frame->getModalView());
    stage.key(VirtualKey::None, 'b');
    EXPECT_FALSE(stage.effect->get_bypass());
}

} // namespace
} // namespace ov1

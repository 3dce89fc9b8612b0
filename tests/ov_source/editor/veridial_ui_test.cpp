#include "editor/veridial_ui.h"

#include "framework/parameters/cparameter_continuous_v1.h"
#include "ov_source/editor/editor_stage.h"

#include "vstgui/lib/platform/platformfactory.h"

#include <thread>

namespace ov1
{
namespace
{

using VSTGUI::MouseButton;
const VSTGUI::Modifiers alt(VSTGUI::ModifierKey::Alt);

TEST(veridial_ui, a_pad_writes_its_two_plain_values_and_nothing_else)
{
    // On 121 points with a handle of 12 and a frame of 2.5: 60 of 109 each way, of a rim at 116.25 of 121.
    constexpr double radius = 100 * 60 / 109.0 * 1.41421356 / (116.25 / 121);
    for (const panel& p : get_panels())
    {
        SCOPED_TRACE(p.label);
        editor_stage stage;
        stage.press_on(stage.pad(p.slot), -30, -30);
        EXPECT_NEAR(stage.value(p.angle_parameter), 45, 0.3) << "places are rounded to 1/1000";
        EXPECT_NEAR(stage.value(p.radius_parameter), radius, 0.3);
        int changed = 0;
        for (int i = 0; i < stage.effect->get_parameter_count(); ++i)
            changed += !stage.effect->get_parameter(i)->get_is_default();
        EXPECT_EQ(changed, 2);
        stage.press_on(stage.pad(p.slot), 10, 20, MouseButton::Right);
        EXPECT_TRUE(stage.value(p.angle_parameter) == 0 && stage.value(p.radius_parameter) == 0);
    }
}

TEST(veridial_ui, parameters_move_their_controls_and_controls_their_parameters)
{
    const editor_stage stage;
    for (VSTGUI::CControl* control : stage.ui->get_controls().others)
    {
        const auto parameter = std::dynamic_pointer_cast<cparameter_continuous_v1>(
            stage.effect->get_parameter(static_cast<uid>(control->getTag())));
        SCOPED_TRACE(parameter->get_name());
        EXPECT_FLOAT_EQ(control->getValueNormalized(), parameter->get_value_normalized()) << "from the opening on";
        parameter->set_value_normalized(0.75f, false);
        EXPECT_FLOAT_EQ(control->getValueNormalized(), 0.75f);
        control->setValueNormalized(0.25f);
        control->valueChanged();
        EXPECT_FLOAT_EQ(parameter->get_value_normalized(), 0.25f);
    }
    stage.set("Skin Angle", 200);
    stage.set("Skin Tone Strength", 60);
    EXPECT_NEAR(stage.pad(panel_slot::skin).getAngle(), 200, 0.2) << "places are rounded to 1/1000";
    EXPECT_NEAR(stage.pad(panel_slot::skin).getRadius(), 60, 0.2);
}

std::vector<std::uint8_t> picture_bytes(VSTGUI::CView& view)
{
    return VSTGUI::getPlatformFactory().createBitmapMemoryPNGRepresentation(picture_of(view)->getPlatformBitmap());
}

TEST(veridial_ui, smoothness_spreads_its_own_panels_range_arc_by_up_to_15_degrees)
{
    for (const std::string name : {"Shadows", "Mids", "Highlights"})
    {
        SCOPED_TRACE(name);
        const editor_stage stage;
        auto& arc = dynamic_cast<COVArrowArcSlider&>(stage.control(name + " Range"));
        auto& slider = stage.control(name + " Smoothness");
        arc.setSpreadAngle(3);
        const auto narrow = picture_bytes(arc);
        arc.setSpreadAngle(12);
        const auto wide = picture_bytes(arc);
        arc.setSpreadAngle(0);
        stage.set(name + " Smoothness", 60); // four fifths of -100..100
        EXPECT_TRUE(picture_bytes(arc) == wide) << "the parameter";
        slider.setValueNormalized(0.2f);
        slider.valueChanged();
        EXPECT_TRUE(picture_bytes(arc) == narrow) << "the slider";
    }
}

TEST(veridial_ui, a_dragged_pad_ignores_its_parameters_until_it_is_released)
{
    editor_stage stage;
    const auto& pad = stage.pad(panel_slot::mids);
    stage.press_on(pad, -30, -30);
    const float angle = pad.getAngle();
    stage.set("Mids Hue", 200);
    EXPECT_EQ(pad.getAngle(), angle);
    stage.release(0, 0);
    stage.set("Mids Hue", 210);
    EXPECT_NEAR(pad.getAngle(), 210, 0.2);
}

TEST(veridial_ui, closing_switches_the_bypass_off)
{
    const editor_stage stage;
    stage.effect->set_bypass(true);
    stage.ui->close();
    EXPECT_FALSE(stage.effect->get_bypass() || stage.ui->is_open());
    stage.set("Sky Angle", 20); // no view shows it
}

TEST(veridial_ui, one_gesture_is_one_step_of_the_history)
{
    // Arcs get the mouse outside their pad's rim. Sliders are dragged by their handle, below the centre of the view.
    const std::pair<const char*, void (*)(editor_stage&)> gestures[] = {
        {"pad", [](editor_stage& s) { s.drag_over(s.pad(panel_slot::sky), -30, -30); }},
        {"arc", [](editor_stage& s) { s.drag_over(s.control("Global Chroma"), -34, -12); }},
        {"slider", [](editor_stage& s) { s.drag_over(s.control("Mids Saturation"), 0, 14); }},
        {"pad, right", [](editor_stage& s) { s.press_on(s.pad(panel_slot::greenery), 0, 0, MouseButton::Right); }},
        {"pad, Alt", [](editor_stage& s) { s.click_on(s.pad(panel_slot::greenery), alt); }},
        {"arc, Alt", [](editor_stage& s) { s.press_on(s.control("Shadows Range"), -34, -20, MouseButton::Left, alt); }},
        {"slider, Alt", [](editor_stage& s) { s.click_on(s.control("Mids Smoothness"), alt); }},
        {"inspire", [](editor_stage& s) { s.click_on(*s.ui->get_controls().inspire); }},
    };
    for (const auto& [name, act] : gestures)
    {
        SCOPED_TRACE(name);
        editor_stage stage;
        for (const char* parameter : {"Greenery Angle", "Greenery Strength", "Shadows Range", "Mids Smoothness"})
            stage.set(parameter, 5);
        const auto before = stage.state();
        act(stage);
        const auto after = stage.state();
        EXPECT_TRUE(after != before);
        EXPECT_FALSE(stage.ui->is_editing());
        EXPECT_EQ(stage.undo_position(), 1);
        stage.effect->undo();
        EXPECT_TRUE(stage.state() == before);
        stage.effect->redo();
        EXPECT_TRUE(stage.state() == after);
    }
}

TEST(veridial_ui, undo_and_redo_wait_for_the_end_of_a_gesture)
{
    editor_stage stage;
    stage.drag_over(stage.pad(panel_slot::sky), -20, 30);
    stage.press_on(stage.pad(panel_slot::greenery), -30, -30);
    const auto held = stage.state();
    stage.effect->undo();
    stage.toolbar().getHistory().undo();
    stage.effect->jump_undo_stack(0);
    EXPECT_TRUE(stage.state() == held);
    EXPECT_EQ(stage.undo_position(), 2);
    stage.release(0, 0);
    stage.toolbar().getHistory().undo();
    EXPECT_EQ(stage.undo_position(), 1);
    EXPECT_EQ(stage.value("Greenery Strength"), 0);
    EXPECT_NE(stage.value("Sky Strength"), 0);
}

TEST(veridial_ui, inspire_makes_a_new_look_at_each_press)
{
    editor_stage stage;
    auto& dice = *stage.ui->get_controls().inspire;
    float last = stage.value("Sky Angle");
    for (int i = 0; i < 2; ++i)
    {
        stage.click_on(dice);
        EXPECT_EQ(stage.undo_position(), i + 1);
        EXPECT_NE(std::exchange(last, stage.value("Sky Angle")), stage.value("Sky Angle"));
        EXPECT_EQ(stage.value("Mids Smoothness"), 100);
        for (const float value : {0.5f, 0.0f}) // not above a half
        {
            dice.CControl::setValue(value);
            stage.ui->valueChanged(&dice);
            EXPECT_EQ(stage.value("Sky Angle"), last);
        }
    }
    stage.effect->undo();
    stage.press_on(dice, 0, 0);
    stage.drag(5, 5);
    stage.release(5, 5);
    EXPECT_EQ(stage.effect->get_undo_range(), (undo_range{0, 1, 2})) << "released elsewhere it is no step";
    stage.click_on(dice);
    VSTGUI::MouseDownEvent second(stage.at(dice), MouseButton::Left);
    second.clickCount = 2;
    stage.send(std::move(second));
    stage.release(stage.at(dice).x, stage.at(dice).y);
    EXPECT_EQ(stage.undo_position(), 3) << "two quick ones are two";
}

TEST(veridial_ui, values_set_on_another_thread_are_shown_at_the_next_idle)
{
    const editor_stage stage;
    std::thread(
        [&]
        {
            stage.set("Sky Angle", 33);
            stage.set("Global Chroma", -100);
        })
        .join();
    EXPECT_EQ(stage.pad(panel_slot::sky).getAngle(), 0);
    EXPECT_EQ(stage.control("Global Chroma").getValueNormalized(), 0.5f);
    EXPECT_TRUE(stage.ui->idle());
    EXPECT_EQ(stage.pad(panel_slot::sky).getAngle(), 33);
    EXPECT_EQ(stage.control("Global Chroma").getValueNormalized(), 0.0f);
}

TEST(veridial_ui, a_tag_without_a_parameter_edits_but_keeps_no_step)
{
    const editor_stage stage;
    const auto before = stage.state();
    auto* const stray = new VSTGUI::CTextButton({0, 0, 10, 10}, stage.ui.get(), 12345);
    stage.frame->addView(stray);
    stray->beginEdit();
    EXPECT_TRUE(stage.ui->is_editing());
    stray->setValue(1);
    stray->valueChanged();
    stray->endEdit();
    EXPECT_FALSE(stage.ui->is_editing());
    EXPECT_EQ(stage.undo_position(), 0);
    EXPECT_TRUE(stage.state() == before);
}

TEST(veridial_ui, without_its_component_every_control_is_harmless)
{
    editor_stage stage;
    const std::weak_ptr<icomponent_v1> gone = stage.effect;
    stage.effect->terminate();
    stage.effect.reset();
    ASSERT_TRUE(gone.expired());
    stage.drag_over(stage.pad(panel_slot::master), -30, -30);
    stage.drag_over(stage.control("Shadows Smoothness"), 0, 14);
    stage.click_on(*stage.ui->get_controls().inspire);
    for (const auto act : {&COVPluginToolbar::resetGrade, &COVPluginToolbar::toggleBypass,
                           &COVPluginToolbar::openManual, &COVPluginToolbar::idle})
        (stage.toolbar().*act)();
    stage.toolbar().getHistory().undo();
    stage.toolbar().getHistory().redo();
    stage.toolbar().getPresets().load({"a", false});
    EXPECT_TRUE(stage.ui->idle());
    stage.ui->discard_and_close();
    EXPECT_FALSE(stage.shown->open);
}

TEST(veridial_ui, escape_twice_goes_back_to_the_state_at_opening_and_closes)
{
    editor_stage stage;
    const auto at_opening = stage.state();
    stage.frame->onActivate(true); // else no key arrives
    stage.set("Sky Strength", 50);
    stage.type(VSTGUI::VirtualKey::Escape);
    EXPECT_TRUE(stage.shown->open);
    stage.type(VSTGUI::VirtualKey::Escape);
    EXPECT_FALSE(stage.shown->open);
    EXPECT_TRUE(stage.state() == at_opening);
}

/// Of pads, other controls, the inspire button and the toolbar.
std::vector<std::string> tooltips_in(language_id language)
{
    const editor_stage stage(language);
    std::vector<std::string> found;
    const auto add = [&](const VSTGUI::CView* view) { found.push_back(tooltip_of(*view)); };
    std::ranges::for_each(stage.ui->get_controls().pads, add);
    std::ranges::for_each(stage.ui->get_controls().others, add);
    add(stage.ui->get_controls().inspire);
    stage.toolbar().forEachChild(add);
    return found;
}

TEST(veridial_ui, every_control_has_its_tooltip_in_the_users_language)
{
    const auto english = tooltips_in(language_id::english), german = tooltips_in(language_id::german);
    ASSERT_EQ(english.size(), 8u + 16 + 1 + 11);
    ASSERT_EQ(german.size(), english.size());
    for (std::size_t i = 0; i < english.size(); ++i)
        EXPECT_TRUE(!english[i].empty() && !german[i].empty() && english[i] != german[i]) << english[i] << german[i];
    const std::tuple<std::size_t, const char*, const char*> texts[] = {
        {3, "Control the hue and tint of the highlights", "Farbton und Färbung der Glanzpunkte einstellen"},
        {5, "Adjust gras green colours ", "Grasgrüne Farbtöne anpassen"},
        {8 + 8, "Increase or decrease the effect range for the highlights",
         "Bereich des Effektes für die Glanzpunkte einstellen"},
        {8 + 12, "Shift the effect range towards the shadows or the highlights",
         "Effektbereich in Richtung Schatten oder Glanzpunkte verschieben"},
        {24, "Generate random look", "Zufälligen Look generieren"},
    };
    for (const auto& [place, in_english, in_german] : texts)
        EXPECT_TRUE(english[place] == in_english && german[place] == in_german) << english[place] << german[place];
}

TEST(veridial_ui, a_frame_that_cannot_be_opened_leaves_nothing_to_be_told)
{
    const toolkit_guard toolkit; // without a desktop's window no frame opens
    const auto effect = create_ccomponent();
    effect->initialize(std::make_shared<chost_v1>(effect));
    const auto ui = std::make_shared<veridial_ui>(effect);
    ASSERT_TRUE(ui->open(std::make_shared<fake_window>()));
    EXPECT_EQ(ui->getFrame(), nullptr);
    ui->update_controls(true); // reaches every listener that is left
    EXPECT_TRUE(ui->idle());
    ui->close();
    effect->terminate();
}

} // namespace
} // namespace ov1

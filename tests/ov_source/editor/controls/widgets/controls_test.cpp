#include "editor/controls/widgets/callout_text.h"
#include "editor/controls/widgets/cblinking_button.h"
#include "editor/controls/widgets/cov_arrow_arc_slider.h"
#include "editor/controls/widgets/cov_callout_slider.h"
#include "editor/controls/widgets/cov_color_wheel_xy_pad.h"
#include "editor/controls/widgets/reset_click.h"
#include "framework/view/toolkit_guard.h"
#include "ov_source/editor/controls/widgets/control_stage.h"

#include <gtest/gtest.h>
#include <limits>
#include <optional>

namespace ov1
{
namespace
{

using VSTGUI::MouseButton;
const VSTGUI::Modifiers none, alt(VSTGUI::ModifierKey::Alt), control_key(VSTGUI::ModifierKey::Control);
const std::pair<MouseButton, VSTGUI::Modifiers> reset_clicks[] = {{MouseButton::Right, none}, {MouseButton::Left, alt}};

/// The toolkit for all tests of the program, with the editor's own resets.
struct toolkit : testing::Environment
{
    void SetUp() override
    {
        running.emplace(); // with a run loop: the mouse wheel starts a timer
        VSTGUI::CControl::CheckDefaultValueEventFunc = leave_resets_to_controls;
    }
    void TearDown() override { running.reset(); }

    std::optional<toolkit_guard> running;
};
[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new toolkit);

struct polar_log : control_log
{
    void valueChanged(VSTGUI::CControl* control) override
    {
        control_log::valueChanged(control);
        angle_heard = dynamic_cast<COVColorWheelXYPad&>(*control).getAngle();
    }
    float angle_heard = -1.0F;
};

/// A pad of 112 x 112: with its handle of 12, a hundredth of the pad is a point.
struct pad_stage : control_stage
{
    bool press_place(double x, double y, MouseButton button = MouseButton::Left, VSTGUI::Modifiers modifiers = {})
    {
        return press(106.0 + 100.0 * x, 56.0 + 100.0 * y, button, modifiers);
    }
    void drag_to_place(double x, double y) { drag(106.0 + 100.0 * x, 56.0 + 100.0 * y); }

    polar_log log;
    COVColorWheelXYPad& pad = add(new COVColorWheelXYPad({100.0, 50.0, 212.0, 162.0}, &log, 7, 8, nullptr));
    const float rim = max_radius_of(112.0, 12.0, 2.5);
};

TEST(cov_color_wheel_xy_pad, packs_values_as_the_toolkit_does_to_the_bit)
{
    for (int i = 0; i <= 2000; i += 3)
        for (int j = 0; j <= 2000; ++j)
        {
            const pad_place place = {static_cast<float>(i) / 2000.0F, static_cast<float>(j) / 2000.0F};
            const float value = pack_pad_value(place);
            pad_place expected;
            VSTGUI::CXYPad::calculateXY(value, expected.x, expected.y);
            const pad_place unpacked = unpack_pad_value(value);
            ASSERT_EQ(value, VSTGUI::CXYPad::calculateValue(place.x, place.y)) << i << " " << j;
            ASSERT_TRUE(unpacked.x == expected.x && unpacked.y == expected.y) << i << " " << j;
        }
}

TEST(cov_color_wheel_xy_pad, the_handle_jumps_to_the_press_and_follows_the_mouse_in_one_edit)
{
    pad_stage stage;
    stage.press_place(0.3, 0.7);
    stage.drag_to_place(0.7, 0.4);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({0.7F, 0.4F}));
    stage.drag_to_place(5.0, -3.0);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({1.0F, 0.0F})) << "kept within the pad";
    stage.release(0.0, 0.0);
    EXPECT_EQ(stage.log.take(), "begin value value value end ");
    EXPECT_FALSE(stage.press_place(0.0, 0.0)) << "a corner is no part of the wheel";
}

TEST(cov_color_wheel_xy_pad, angle_and_radius_place_the_handle_and_are_kept_on_the_axes)
{
    pad_stage stage;
    stage.pad.setAngle(90.0F);
    EXPECT_EQ(stage.pad.getValue(), pad_centre_value);
    stage.pad.setRadius(100.0F);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({(1.0F - stage.rim) / 2.0F, 0.5F})) << "left";
    const float value = stage.pad.getValue();
    stage.press_place(0.3, 0.8);
    stage.log.take();
    stage.type(VSTGUI::VirtualKey::Escape);
    EXPECT_EQ(stage.log.take(), "value end ");
    EXPECT_EQ(stage.pad.getValue(), value);
    EXPECT_TRUE(stage.pad.getAngle() == 90.0F && stage.pad.getRadius() == 100.0F) << "as before the press";
}

TEST(cov_color_wheel_xy_pad, a_reset_is_one_edit_that_ends_at_angle_and_radius_0)
{
    for (const auto& [button, modifiers] : reset_clicks)
        for (const auto& [x, y] : {std::pair(0.3, 0.8), {0.5, 0.5}}) // a handle at the centre has both left to reset
        {
            pad_stage stage;
            stage.pad.setAngle(70.0F);
            stage.pad.setRadius(40.0F);
            stage.press_place(x, y);
            stage.release(0.0, 0.0);
            stage.log.take();
            EXPECT_TRUE(stage.press_place(0.6, 0.6, button, modifiers));
            EXPECT_EQ(stage.log.take(), "begin value end ");
            EXPECT_EQ(stage.log.angle_heard, 0.0F) << "set before the listener is called";
            EXPECT_TRUE(stage.pad.getRadius() == 0.0F && stage.pad.getValue() == pad_centre_value);
            stage.press_place(0.6, 0.6, button, modifiers);
            EXPECT_EQ(stage.log.take(), "") << "once";
        }
}

TEST(cov_arrow_arc_slider, the_arrow_jumps_to_the_press_within_its_pixel_range)
{
    control_stage stage;
    auto& arc = stage.add(new COVArrowArcSlider({20.0, 100.0, 80.0, 220.0}, &stage.log, 3, 109, 211, nullptr));
    for (const auto& [y, value] : {std::pair(109.0, 1.0), {160.0, 0.5}, {211.0, 0.0}, {101.0, 1.0}, {218.0, 0.0}})
    {
        stage.press(30.0, y);
        EXPECT_NEAR(arc.getValue(), value, 1e-6) << y;
        stage.release(30.0, y);
    }
    for (const auto& [button, modifiers] : reset_clicks)
    {
        arc.setValue(0.25F);
        stage.log.take();
        stage.press(30.0, 180.0, button, modifiers);
        stage.press(30.0, 180.0, button, modifiers);
        EXPECT_EQ(stage.log.take(), "begin value end ") << "once";
        EXPECT_EQ(arc.getValue(), arc.getDefaultValue());
    }
}

TEST(cov_arrow_arc_slider, the_arrow_points_away_from_the_wheel_and_doubles_with_a_spread)
{
    // 60 wide, the range's ends 40 from the middle, so that 30 degrees up is at 0.5 + 30 / (2 x 41.81).
    constexpr float up = 0.85876F;
    constexpr auto left = COVArrowArcOrientation::pivot_right, right = COVArrowArcOrientation::pivot_left;
    const std::tuple<COVArrowArcOrientation, float, double, const char*> cases[] = {
        {left, up, 0.0, "up left "}, {right, 1.0F - up, 0.0, "down right "}, {left, 0.5F, 60.0, "up left down left "}};
    for (const auto& [side, value, spread, expected] : cases)
    {
        const auto arc = VSTGUI::owned(new COVArrowArcSlider({0.0, 0.0, 60.0, 100.0}, nullptr, 3, 10, 90, nullptr));
        arc->setOrientation(side);
        arc->setSpreadAngle(spread);
        arc->setValue(value);
        const auto picture = picture_of(*arc);
        std::string covered;
        for (const bool lower : {false, true}) // 50 from the pivot: 25 up and down, 43.3 along
            for (const bool on_right : {false, true})
                if (pixel(*picture, on_right ? 43.3 : 16.7, lower ? 75.0 : 25.0).alpha == 255)
                    covered += std::string(lower ? "down " : "up ") + (on_right ? "right " : "left ");
        EXPECT_EQ(covered, expected);
    }
}

/// Two sliders of -100 to 100, a point of the mouse being a step of 2; their handles stand at 150 to 160.
struct slider_stage : control_stage
{
    slider_stage() { first.setPartner(&second); }
    CSimpleSlider& make(double top)
    {
        auto& slider = add(new CSimpleSlider({100.0, top, 210.0, top + 20.0}, &log, 1, 100, 200, handle, {}, 4));
        slider.setMin(-100.0F);
        slider.setMax(100.0F);
        slider.setDefaultValue(10.0F);
        slider.setValue(0.0F);
        return slider;
    }

    VSTGUI::SharedPointer<VSTGUI::CBitmap> handle = painted(10.0, 10.0, [](auto&) {});
    CSimpleSlider& first = make(0.0);
    CSimpleSlider& second = make(50.0);
};

TEST(csimple_slider, is_dragged_by_its_handle_and_with_control_moves_its_partner_by_the_same_amount)
{
    for (const bool ganged : {false, true})
    {
        SCOPED_TRACE(ganged);
        const VSTGUI::Modifiers& keys = ganged ? control_key : none;
        slider_stage stage;
        stage.second.setValue(-30.0F);
        stage.press(120.0, 5.0, MouseButton::Left, keys);
        EXPECT_EQ(stage.log.take(), "") << "beside the handle";
        stage.press(152.0, 5.0, MouseButton::Left, keys);
        stage.drag(162.0, 5.0, keys);
        stage.release(162.0, 5.0);
        EXPECT_EQ(stage.log.take(), ganged ? "begin begin value value end end " : "begin value end ");
        stage.press(162.0, 5.0, MouseButton::Left, keys);
        stage.drag(182.0, 5.0, keys);
        stage.log.take();
        stage.type(VSTGUI::VirtualKey::Escape);
        EXPECT_EQ(stage.log.take(), ganged ? "value end value end " : "value end ");
        EXPECT_NEAR(stage.first.getValue(), 20.0, 1e-3);
        EXPECT_NEAR(stage.second.getValue(), ganged ? -10.0 : -30.0, 1e-3);
    }
}

TEST(csimple_slider, resets_and_follows_the_wheel_only_where_enabled)
{
    const std::tuple<MouseButton, VSTGUI::Modifiers, bool, float> cases[] = {
        {MouseButton::Left, alt, false, 10.0F},
        {MouseButton::Left, control_key, true, 0.0F}, // begins a ganged drag
        {MouseButton::Right, none, true, 10.0F},
        {MouseButton::Right, none, false, 0.0F},
    };
    for (const auto& [button, modifiers, resets_on_right_click, value] : cases)
    {
        slider_stage stage;
        stage.first.setResetOnRightClick(resets_on_right_click);
        stage.press(152.0, 5.0, button, modifiers);
        EXPECT_EQ(stage.first.getValue(), value);
    }
    slider_stage stage;
    stage.first.setAcceptMouseWheel(true);
    EXPECT_TRUE(stage.turn_wheel_up({152.0, 5.0}));
    EXPECT_GT(stage.first.getValue(), 0.0F) << "away from the user is more";
}

TEST(wheel_events, reach_the_parent_of_every_control_that_does_not_accept_them)
{
    control_stage stage;
    VSTGUI::CControl* const controls[] = {
        &stage.add(new COVColorWheelXYPad({0.0, 0.0, 100.0, 100.0}, &stage.log, 1, 2, nullptr)),
        &stage.add(new COVArrowArcSlider({100.0, 0.0, 200.0, 100.0}, &stage.log, 3, 0, 100, nullptr)),
        &stage.add(new COVCalloutSlider({200.0, 0.0, 300.0, 100.0}, &stage.log, 4, 200, 290, nullptr, nullptr, {}, 4))};
    for (auto* control : controls)
        EXPECT_FALSE(stage.turn_wheel_up(control->getViewSize().getCenter())) << control->getTag();
    EXPECT_EQ(stage.log.take(), "");
}

TEST(callout_text, is_the_number_a_blank_and_the_unit)
{
    const std::tuple<float, int, const char*, const char*> cases[] = {
        {-37.4F, 0, "%", "-37 %"}, {-37.4F, 0, "", "-37"}, {12.96F, 1, "°", "13.0 °"},   {-0.4F, 0, "%", "0 %"},
        {-0.06F, 1, "", "-0.1"},   {5.25F, -3, "", "5"},   {0.5F, 99, "", "0.500000000"}};
    for (const auto& [value, precision, unit, text] : cases)
        EXPECT_EQ(callout_text(value, precision, unit), text);
    EXPECT_EQ(callout_text(std::numeric_limits<float>::lowest(), 9, "").size(), 50U) << "sign, 39 digits, point, 9";
}

const VSTGUI::CColor colours[] = {{250, 0, 0}, {0, 250, 0}, {0, 0, 250}, {250, 250, 0}};

/// Four frames in these colours, row by row.
VSTGUI::SharedPointer<VSTGUI::CBitmap> sheet(double frame)
{
    return painted(2.0 * frame, 2.0 * frame,
                   [=](auto& context)
                   {
                       for (int i = 0; i < 4; ++i)
                           fill(context, {{i % 2 * frame, i / 2 * frame}, VSTGUI::CPoint(frame, frame)}, colours[i]);
                   });
}

TEST(cov_button, reports_a_press_once_and_shows_the_lower_half_while_pressed)
{
    control_stage stage;
    auto& button = stage.add(new COVButton({0.0, 0.0, 40.0, 20.0}, &stage.log, 1, COVButton::kKickStyle, ""));
    button.setBackground(sheet(20.0));
    EXPECT_FALSE(stage.press(5.0, 5.0, VSTGUI::MouseButton::Right));
    for (const bool cancelled : {true, false})
    {
        EXPECT_EQ(pixel(*picture_of(button), 1.0, 19.0), colours[0]);
        stage.press(5.0, 5.0);
        EXPECT_EQ(pixel(*picture_of(button), 39.0, 1.0), colours[3]);
        VSTGUI::MouseCancelEvent cancel;
        cancelled ? button.dispatchEvent(cancel) : static_cast<void>(stage.release(5.0, 5.0));
        EXPECT_EQ(stage.log.take(), cancelled ? "begin end " : "begin value value end ") << "1, and 0 again";
        EXPECT_FALSE(button.isPressed() || button.isOn());
    }
}

TEST(cblinking_button, does_not_drift_over_many_idle_calls)
{
    ASSERT_EQ(VSTGUI::CView::idleRate, 30U);
    const auto button = VSTGUI::owned(new CBlinkingButton({0.0, 0.0, 9.0, 9.0}, nullptr, 1, COVButton::kKickStyle, ""));
    for (const int period : {500, 70, 1000}) // 70 is no whole number of idle calls
    {
        button->setBlinkParams(true, period);
        int flips = 0;
        for (int call = 0; call < 30 * 100; ++call) // 100 s
        {
            const bool before = button->isBlinkPhaseOn();
            button->onIdle();
            flips += before != button->isBlinkPhaseOn();
        }
        EXPECT_NEAR(flips, 100000 / period, 1);
    }
}

} // namespace
} // namespace ov1

#include "editor/cov_arrow_arc_slider.h"
#include "editor/cov_callout_slider.h"
#include "editor/cov_color_wheel_xy_pad.h"
#include "ov_source/editor/control_stage.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using VSTGUI::MouseButton;
const VSTGUI::Modifiers none, alt(VSTGUI::ModifierKey::Alt), control_key(VSTGUI::ModifierKey::Control);
const VSTGUI::CColor handle_colour(200, 150, 100);

VSTGUI::SharedPointer<VSTGUI::CBitmap> handle_picture()
{
    return painted(10.0, 10.0, [](auto& context) { fill(context, {0.0, 0.0, 10.0, 10.0}, handle_colour); });
}

/// Two sliders of -100 to 100, a point of the mouse being a step of 2; their handles stand at 150 to 160.
class slider_stage : public control_stage
{
public:
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

    VSTGUI::SharedPointer<VSTGUI::CBitmap> handle = handle_picture();
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
        stage.drag(172.0, 5.0, keys);
        stage.drag(162.0, 5.0, keys);
        stage.release(162.0, 5.0);
        EXPECT_EQ(stage.log.take(), ganged ? "begin begin value value value value end end " : "begin value value end ");
        EXPECT_NEAR(stage.first.getValue(), 20.0, 1e-3);
        EXPECT_NEAR(stage.second.getValue(), ganged ? -10.0 : -30.0, 1e-3);

        stage.press(162.0, 5.0, MouseButton::Left, keys);
        stage.drag(182.0, 5.0, keys);
        stage.log.take();
        stage.type(VSTGUI::VirtualKey::Escape);
        EXPECT_EQ(stage.log.take(), ganged ? "value end value end " : "value end ");
        EXPECT_NEAR(stage.first.getValue(), 20.0, 1e-3);
        EXPECT_NEAR(stage.second.getValue(), ganged ? -10.0 : -30.0, 1e-3);
    }
}

TEST(csimple_slider, resets_and_turns_only_as_told)
{
    const struct
    {
        const char* name;
        MouseButton button;
        VSTGUI::Modifiers modifiers;
        bool flag, resets;
    } cases[] = {{"Alt-click", MouseButton::Left, alt, false, true},
                 {"Control-click is a ganged drag", MouseButton::Left, control_key, true, false},
                 {"right click", MouseButton::Right, none, true, true},
                 {"right click, not asked for", MouseButton::Right, none, false, false}};
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.name);
        slider_stage stage;
        stage.first.setResetOnRightClick(c.flag);
        stage.press(152.0, 5.0, c.button, c.modifiers);
        EXPECT_EQ(stage.first.getValue(), c.resets ? 10.0F : 0.0F);
    }
    slider_stage stage;
    stage.first.setAcceptMouseWheel(true);
    EXPECT_TRUE(stage.turn_wheel_up(152.0, 5.0));
    EXPECT_GT(stage.first.getValue(), 0.0F) << "away from the user is more";
}

TEST(wheel_events, pass_all_controls_that_did_not_ask_for_them)
{
    control_stage stage;
    VSTGUI::CControl* const controls[] = {
        &stage.add(new COVColorWheelXYPad({0.0, 0.0, 100.0, 100.0}, &stage.log, 1, 2, nullptr)),
        &stage.add(new COVArrowArcSlider({100.0, 0.0, 200.0, 100.0}, &stage.log, 3, 0, 100, nullptr)),
        &stage.add(new COVCalloutSlider({200.0, 0.0, 300.0, 100.0}, &stage.log, 4, 200, 290, nullptr, nullptr, {}, 4))};
    for (auto* control : controls)
        EXPECT_FALSE(stage.turn_wheel_up(control->getViewSize().getCenter().x, 50.0)) << control->getTag();
    EXPECT_EQ(stage.log.take(), "");
}

/// Counts how often it is asked to be redrawn.
struct counting_slider : COVCalloutSlider
{
    using COVCalloutSlider::COVCalloutSlider;
    void invalid() override { ++redraws; }
    int redraws = 0;
};

TEST(cov_callout_slider, writes_its_value_above_the_handle_and_redraws_only_for_changes)
{
    const auto handle = handle_picture(), back = painted(110.0, 40.0, [](auto&) {});
    const auto slider =
        VSTGUI::owned(new counting_slider({0.0, 0.0, 110.0, 40.0}, nullptr, 1, 0, 100, handle, back, {}, 4));
    slider->setMin(-100.0F);
    slider->setMax(100.0F);
    for (int round = 0; round < 2; ++round)
    {
        slider->setPrecision(0);
        slider->setUnitString("%");
        EXPECT_EQ(slider->redraws, 2) << round;
    }
    for (const float value : {-100.0F, -37.4F, 100.0F})
    {
        slider->setValue(value);
        const auto picture = picture_of(*slider);
        const double handle_left = 50.0 + value / 2.0;
        EXPECT_EQ(pixel(*picture, handle_left + 5.0, 35.0), handle_colour);
        int inked = 0;
        for (double x = 0.0; x < 110.0; x += 0.5)
            for (double y = 0.0; y < 30.0; y += 0.5)
                if (const VSTGUI::CColor c = pixel(*picture, x, y); c.alpha > 0)
                {
                    ++inked;
                    ASSERT_TRUE(y > 16.0 && x > handle_left - 25.0 && x < handle_left + 35.0) << value << " " << x;
                }
        EXPECT_GT(inked, 50) << value;
    }
}

} // namespace
} // namespace ov1

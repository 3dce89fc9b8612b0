#include "editor/cov_arrow_arc_slider.h"
#include "editor/cov_color_wheel_xy_pad.h"
#include "ov_source/editor/control_stage.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using VSTGUI::MouseButton;
const std::pair<MouseButton, VSTGUI::Modifiers> reset_clicks[] = {
    {MouseButton::Right, {}}, {MouseButton::Left, VSTGUI::Modifiers(VSTGUI::ModifierKey::Alt)}};

struct polar_log : control_log
{
    void valueChanged(VSTGUI::CControl* control) override
    {
        control_log::valueChanged(control);
        angle_heard = dynamic_cast<COVColorWheelXYPad&>(*control).getAngle();
    }
    float angle_heard = -1.0F;
};

/// A pad of 112 x 112 at 100, 50: with its handle of 12, a hundredth of the pad is a point.
class pad_stage : public control_stage
{
public:
    polar_log log;
    COVColorWheelXYPad& pad = add(new COVColorWheelXYPad({100.0, 50.0, 212.0, 162.0}, &log, 7, 8, nullptr));

    bool press_place(double x, double y, MouseButton button = MouseButton::Left, VSTGUI::Modifiers modifiers = {})
    {
        return press(106.0 + 100.0 * x, 56.0 + 100.0 * y, button, modifiers);
    }
    bool drag_to_place(double x, double y) { return drag(106.0 + 100.0 * x, 56.0 + 100.0 * y); }
};

TEST(cov_color_wheel_xy_pad, the_handle_jumps_to_the_press_and_follows_the_mouse_in_one_edit)
{
    pad_stage stage;
    EXPECT_TRUE(stage.press_place(0.3, 0.7));
    EXPECT_EQ(stage.log.take(), "begin value ");
    EXPECT_NEAR(stage.pad.getAngle(), 135.0, 1e-3);
    stage.drag_to_place(0.7, 0.4);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({0.7F, 0.4F}));
    stage.drag_to_place(5.0, -3.0);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({1.0F, 0.0F})) << "kept within the pad";
    EXPECT_EQ(stage.pad.getRadius(), 100.0F);
    stage.release(0.0, 0.0);
    EXPECT_EQ(stage.log.take(), "value value end ");
    EXPECT_FALSE(stage.press_place(0.0, 0.0)) << "a corner is no part of the wheel";
}

TEST(cov_color_wheel_xy_pad, an_angle_and_a_radius_place_the_handle)
{
    pad_stage stage;
    const float top = (1.0F - max_radius_of(112.0, 12.0, 2.5)) / 2.0F;
    stage.pad.setAngle(90.0F);
    EXPECT_EQ(stage.pad.getValue(), pad_centre_value) << "at radius 0 an angle is kept, and moves nothing";
    stage.pad.setRadius(100.0F);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({top, 0.5F})) << "left";
    EXPECT_TRUE(stage.pad.getAngle() == 90.0F && stage.pad.getRadius() == 100.0F);
    stage.pad.setAngle(0.0F);
    EXPECT_EQ(stage.pad.getValue(), pack_pad_value({0.5F, top}));
    stage.pad.setAngle(200.0F);
    EXPECT_EQ(stage.log.take(), "") << "the listener hears of the mouse alone";
    stage.press_place(0.5, 0.5);
    EXPECT_NEAR(stage.pad.getAngle(), 200.0F, 0.1) << "at the centre both stay, as exact as places are";
    EXPECT_NEAR(stage.pad.getRadius(), 100.0F, 0.1);
}

TEST(cov_color_wheel_xy_pad, a_reset_is_one_edit_that_ends_at_angle_and_radius_0)
{
    for (const auto& [button, modifiers] : reset_clicks)
        for (const auto& [x, y] :
             {std::pair(0.3, 0.8), {0.5, 0.5}}) // at the centre, angle and radius are left to reset
        {
            pad_stage stage;
            stage.pad.setAngle(70.0F);
            stage.pad.setRadius(40.0F);
            stage.press_place(x, y);
            stage.release(0.0, 0.0);
            stage.log.take();
            EXPECT_TRUE(stage.press_place(0.6, 0.6, button, modifiers));
            EXPECT_EQ(stage.log.take(), "begin value end ");
            EXPECT_EQ(stage.log.angle_heard, 0.0F) << "set before the listener hears of it";
            EXPECT_TRUE(stage.pad.getRadius() == 0.0F && stage.pad.getValue() == pad_centre_value);
            stage.press_place(0.6, 0.6, button, modifiers);
            EXPECT_EQ(stage.log.take(), "") << "once";
        }
}

TEST(cov_color_wheel_xy_pad, a_cancelled_drag_gives_back_what_the_press_found)
{
    pad_stage stage;
    stage.pad.setAngle(90.0F);
    stage.pad.setRadius(60.0F);
    const float value = stage.pad.getValue();
    stage.press_place(0.3, 0.8);
    stage.drag_to_place(0.8, 0.6);
    stage.log.take();
    stage.type(VSTGUI::VirtualKey::Escape);
    EXPECT_EQ(stage.log.take(), "value end ");
    EXPECT_EQ(stage.pad.getValue(), value);
    EXPECT_TRUE(stage.pad.getAngle() == 90.0F && stage.pad.getRadius() == 60.0F)
        << "on an axis no value gives them back";
}

TEST(cov_color_wheel_xy_pad, a_handle_dragged_outside_is_drawn_on_the_rim)
{
    pad_stage stage;
    const VSTGUI::CColor frame(151, 100, 50);
    stage.pad.setFrameColor(frame);
    stage.pad.setValue(pack_pad_value({1.0F, 0.5F}));
    const auto picture = picture_of(stage.pad);
    const double centre = 156.0 + 50.0 * max_radius_of(112.0, 12.0, 2.5);
    EXPECT_EQ(pixel(*picture, centre - 6.0, 106.0), frame);
    EXPECT_EQ(pixel(*picture, centre + 6.0, 106.0), frame);
    EXPECT_EQ(pixel(*picture, centre, 106.0).alpha, 0) << "the wheel shows through";
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
    stage.press(30.0, 180.0);
    stage.log.take();
    stage.type(VSTGUI::VirtualKey::Escape);
    EXPECT_EQ(stage.log.take(), "value end ");
    EXPECT_EQ(arc.getValue(), 0.0F);
    for (const auto& [button, modifiers] : reset_clicks)
    {
        arc.setValue(0.25F);
        EXPECT_TRUE(stage.press(30.0, 180.0, button, modifiers));
        EXPECT_EQ(stage.log.take(), "begin value end ");
        EXPECT_EQ(arc.getValue(), arc.getDefaultValue());
    }
}

TEST(cov_arrow_arc_slider, the_arrow_points_away_from_the_wheel_and_doubles_with_a_spread)
{
    // 60 wide, the range's ends 40 from the middle, so that 30 degrees up is at 0.5 + 30 / (2 x 41.81).
    constexpr float up = 0.85876F;
    constexpr auto left = COVArrowArcOrientation::pivot_right, right = COVArrowArcOrientation::pivot_left;
    const std::tuple<COVArrowArcOrientation, float, double, const char*> cases[] = {
        {left, up, 0.0, "up left "},
        {right, up, 0.0, "up right "},
        {right, 1.0F - up, 0.0, "down right "},
        {left, 0.5F, 60.0, "up left down left "},
    };
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

} // namespace
} // namespace ov1

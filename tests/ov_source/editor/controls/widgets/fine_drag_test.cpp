#include "editor/controls/widgets/cov_arrow_arc_slider.h"
#include "editor/controls/widgets/cov_color_wheel_xy_pad.h"
#include "editor/controls/widgets/csimple_slider.h"
#include "ov_source/editor/controls/widgets/control_stage.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using VSTGUI::CPoint;
const VSTGUI::Modifiers none, shift(VSTGUI::ModifierKey::Shift), control_key(VSTGUI::ModifierKey::Control);

TEST(fine_drag, continues_from_the_handle_when_a_key_is_pressed_and_from_the_drag_when_it_is_released)
{
    const drag_hold plain, fine{true}, locked{false, true}, both{true, true};
    struct step
    {
        CPoint mouse;
        CPoint handle;
        drag_hold hold;
        CPoint counts_at;
    };
    const std::pair<const char*, std::vector<step>> cases[] = {
        {"plain", {{{50, 50}, {10, 10}, plain, {50, 50}}, {{60, 40}, {50, 50}, plain, {60, 40}}}},
        {"fine from the press", {{{50, 50}, {10, 12}, fine, {10, 12}}, {{70, 40}, {10, 12}, fine, {12, 11}}}},
        {"released during the drag",
         {{{50, 50}, {10, 10}, fine, {10, 10}},
          {{60, 50}, {10, 10}, fine, {11, 10}},
          {{61, 52}, {11, 10}, plain, {12, 12}}}},
        {"pressed with the mouse outside the range",
         {{{50, 50}, {10, 10}, plain, {50, 50}},
          {{500, 50}, {50, 50}, plain, {500, 50}},
          {{490, 50}, {100, 50}, fine, {99, 50}}}},
        {"across first",
         {{{50, 50}, {10, 10}, locked, {10, 10}},
          {{51, 50}, {10, 10}, locked, {10, 10}},
          {{53, 52}, {10, 10}, locked, {13, 10}},
          {{54, 90}, {13, 10}, locked, {14, 10}}}},
        {"down first, at a tenth",
         {{{50, 50}, {10, 10}, both, {10, 10}}, {{51, 60}, {10, 10}, both, {10, 11}}, {{99, 70}, {}, both, {10, 12}}}},
    };
    for (const auto& [name, steps] : cases)
    {
        SCOPED_TRACE(name);
        fine_drag path;
        for (std::size_t i = 0; i < steps.size(); ++i)
        {
            const auto& [mouse, handle, hold, expected] = steps[i];
            const CPoint at = i == 0 ? path.press(mouse, handle, hold) : path.move(mouse, handle, hold);
            EXPECT_NEAR(at.x, expected.x, 1e-9) << i;
            EXPECT_NEAR(at.y, expected.y, 1e-9) << i;
        }
    }
}

TEST(fine_drag, moves_controls_by_a_tenth_from_where_they_are)
{
    control_stage stage;
    const auto handle = painted(10.0, 10.0, [](auto&) {});
    auto& pad = stage.add(new COVColorWheelXYPad({0.0, 0.0, 112.0, 112.0}, &stage.log, 1, 2, nullptr));
    auto& arc = stage.add(new COVArrowArcSlider({120.0, 0.0, 180.0, 120.0}, &stage.log, 3, 10, 110, nullptr));
    auto& slider = stage.add(new CSimpleSlider({200.0, 0.0, 310.0, 20.0}, &stage.log, 4, 200, 300, handle, {}, 4));
    struct drag_case
    {
        VSTGUI::CControl& control;
        CPoint press;
        VSTGUI::Modifiers keys;
        float value; ///< after 40 to the right and 20 up
    };
    for (const auto& [control, press, keys, value] : {drag_case{pad, {60, 60}, shift, pack_pad_value({0.34F, 0.68F})},
                                                      {pad, {60, 60}, control_key, pack_pad_value({0.7F, 0.7F})},
                                                      {arc, {150, 30}, shift, 0.27F},
                                                      {slider, {235, 5}, shift, 0.373F},
                                                      {slider, {240, 5}, none, 0.733F}})
    {
        SCOPED_TRACE(control.getTag());
        pad.setValue(pack_pad_value({0.3F, 0.7F}));
        arc.setValue(0.25F);
        slider.setValue(0.333F); // drawn at 233, which is 0.33
        control.setDirty(false); // as drawing leaves it
        const float before = control.getValue();
        stage.press(press.x, press.y, VSTGUI::MouseButton::Left, keys);
        EXPECT_EQ(control.getValue(), before) << "no jump";
        stage.drag(press.x + 40.0, press.y - 20.0, keys);
        EXPECT_NEAR(control.getValue(), value, 1e-6);
        stage.release(press.x + 40.0, press.y - 20.0);
        EXPECT_EQ(stage.log.take(), "begin value end ");
    }
}

TEST(fine_drag, a_double_click_resets_arcs_and_sliders)
{
    control_stage stage;
    VSTGUI::CControl* const controls[] = {
        &stage.add(new COVArrowArcSlider({120.0, 0.0, 180.0, 120.0}, &stage.log, 3, 10, 110, nullptr)),
        &stage.add(new CSimpleSlider({200.0, 0.0, 310.0, 20.0}, &stage.log, 4, 200, 300, nullptr, {}, 4))};
    for (auto* control : controls)
    {
        control->setValue(0.9F);
        VSTGUI::MouseDownEvent second(control->getViewSize().getCenter(), VSTGUI::MouseButton::Left);
        second.clickCount = 2;
        stage.send(std::move(second));
        EXPECT_EQ(control->getValue(), control->getDefaultValue());
        EXPECT_EQ(stage.log.take(), "begin value end ");
    }
}

} // namespace
} // namespace ov1

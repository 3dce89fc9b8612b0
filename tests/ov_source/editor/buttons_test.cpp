#include "editor/cblinking_button.h"
#include "editor/ccached_nine_part_tiled_bitmap.h"
#include "editor/cov_rounded_grey_button.h"
#include "editor/reset_click.h"
#include "ov_source/editor/control_stage.h"
#include "vstgui/lib/vstguiinit.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

/// The toolkit for all tests of the program, with the editor's own resets.
struct toolkit : testing::Environment
{
    void SetUp() override
    {
        VSTGUI::init(nullptr);
        VSTGUI::CControl::CheckDefaultValueEventFunc = leave_resets_to_controls;
    }
    void TearDown() override { VSTGUI::exit(); }
};
[[maybe_unused]] const auto* const environment = testing::AddGlobalTestEnvironment(new toolkit);

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

TEST(cov_button, the_icons_frame_follows_mouse_and_value)
{
    const auto button = VSTGUI::owned(new COVButton({0.0, 0.0, 41.0, 40.0}, nullptr, 1, COVButton::kOnOffStyle, ""));
    button->setIcon(sheet(20.0));
    for (const bool on : {false, true})
        for (const bool hovered : {false, true})
        {
            button->setValue(on ? 1.0F : 0.0F);
            VSTGUI::MouseEnterEvent enter;
            VSTGUI::MouseExitEvent exit;
            hovered ? button->dispatchEvent(enter) : button->dispatchEvent(exit);
            const auto picture = picture_of(*button);
            EXPECT_EQ(pixel(*picture, 11.0, 10.0), colours[2 * on + hovered]) << "41 wide: 10.5 is rounded up";
            EXPECT_EQ(pixel(*picture, 30.5, 29.5), colours[2 * on + hovered]);
            EXPECT_EQ(pixel(*picture, 10.5, 20.0).alpha, 0);
        }
}

TEST(cov_button, tells_of_a_press_once_and_shows_the_lower_half_meanwhile)
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

TEST(cblinking_button, keeps_its_rhythm_over_many_idle_calls)
{
    ASSERT_EQ(VSTGUI::CView::idleRate, 30U);
    const auto button =
        VSTGUI::owned(new CBlinkingButton({0.0, 0.0, 40.0, 40.0}, nullptr, 1, COVButton::kKickStyle, ""));
    button->setBlinkIcon(sheet(20.0));
    for (const int period : {500, 70, 1000}) // 70 is no whole number of idle calls
    {
        button->setBlinkParams(true, period);
        EXPECT_TRUE(button->wantsIdle() && !button->isBlinkPhaseOn());
        int flips = 0;
        for (int call = 0; call < 30 * 100; ++call) // 100 s
        {
            const bool before = button->isBlinkPhaseOn();
            button->onIdle();
            flips += before != button->isBlinkPhaseOn();
            ASSERT_EQ(pixel(*picture_of(*button), 15.0, 15.0) == colours[0], button->isBlinkPhaseOn());
        }
        EXPECT_NEAR(flips, 100000 / period, 1);
    }
}

TEST(cov_rounded_grey_button, draws_icons_at_their_scales_and_keeps_the_title_between)
{
    const auto button = VSTGUI::owned(
        new COVRoundedGreyButton({0.0, 0.0, 100.0, 24.0}, nullptr, 1, "WWWWWWWWWWWWWWWW", COVButton::kKickStyle));
    button->setLefttIcon(sheet(16.0), 0.5F);
    button->setRightIcon(sheet(4.0), 1.0F);
    const auto picture = picture_of(*button);
    EXPECT_EQ(pixel(*picture, 9.0, 5.0), colours[0]) << "8 in, and at half its scale 16 high about the middle";
    EXPECT_EQ(pixel(*picture, 23.0, 19.0), colours[3]);
    EXPECT_EQ(pixel(*picture, 90.0, 10.0), colours[1]) << "8 wide, 8 before the end";
}

TEST(ccached_nine_part_tiled_bitmap, shows_in_magenta_where_no_size_was_generated)
{
    const auto source = sheet(5.0);
    source->getPlatformBitmap()->setScaleFactor(2.0);
    CCachedNinePartTiledBitmap cache(VSTGUI::makeOwned<VSTGUI::CNinePartTiledBitmap>(
        source->getPlatformBitmap(), VSTGUI::CNinePartTiledDescription(3, 3, 3, 3)));
    cache.generate(nullptr, 60.0, 40.0);
    for (const bool known : {true, false})
    {
        const VSTGUI::CRect place(10.0, 0.0, known ? 70.0 : 71.0, 40.0);
        const auto picture = painted(80.0, 40.0, [&](auto& context) { cache.draw(&context, place); });
        EXPECT_EQ(pixel(*picture, 11.0, 1.0), known ? colours[0] : VSTGUI::kMagentaCColor);
        EXPECT_EQ(pixel(*picture, place.right - 1.0, 39.0), known ? colours[3] : VSTGUI::kMagentaCColor);
    }
}

} // namespace
} // namespace ov1

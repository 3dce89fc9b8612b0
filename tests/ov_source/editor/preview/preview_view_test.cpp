// The preview in its scroll view: what is drawn before, after and beside the split line, and what lies under the mouse.
#include "editor/preview/display_grade.h"
#include "editor/preview/preview_view.h"
#include "framework/row_renderer.h"
#include "framework/view/toolkit_guard.h"
#include "ov_source/editor/controls/widgets/control_stage.h"
#include "shared/argb_float.h"
#include "shared/image.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using VSTGUI::CColor;

/// Makes red of green, green of blue and blue of the inverted red, and adds a code to red for each row.
struct channel_mover : row_renderer
{
    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        for (std::size_t x = 0; x < count; ++x)
            out[x] = {in[x].a, in[x].g + static_cast<float>(y) / 255.0f, in[x].b, 1.0f - in[x].r};
    }
};

TEST(grade_display, renders_every_pixel_of_its_row_by_channel)
{
    const display_picture picture{2, 2, {0xff102030, 0xffff0080, 0xff000000, 0xffffffff}};
    const display_picture graded = grade_display(picture, channel_mover());
    EXPECT_EQ(graded.width, 2U);
    EXPECT_EQ(graded.height, 2U);
    EXPECT_EQ(graded.pixels, (std::vector<std::uint32_t>{0xff2030ef, 0xff008000, 0xff0100ff, 0xffffff00}));
}

/// A view of 200 x 100 with a picture of 100 x 50, fitted at a zoom of 2. Before it is red, after it blue, and the
/// trial is green; in both frames the upper left pixel is another.
class preview : public testing::Test
{
protected:
    preview()
    {
        scroller.addView(&view);
        view.set_scroller(&scroller);
        view.update_source(frame_of({1, 1, 0, 0}, {1, 1, 1, 0}));
        view.update(frame_of({1, 0, 0, 1}, {1, 0, 1, 1}));
        view.idle();
    }

    static image frame_of(const argb_float& colour, const argb_float& corner)
    {
        image frame(100, 50, image::pixel_type::argb_f32, image::origin::top_left);
        auto* const pixels = reinterpret_cast<argb_float*>(frame.pixels());
        std::fill_n(pixels, 100 * 50, colour);
        pixels[0] = corner;
        return frame;
    }

    CColor drawn_at(double x, double y)
    {
        const VSTGUI::CRect whole = stage.frame->getViewSize();
        const auto picture = painted(400, 300, [&](auto& context)
                                     { static_cast<VSTGUI::CView*>(stage.frame)->drawRect(&context, whole); });
        return pixel(*picture, x, y);
    }

    const toolkit_guard toolkit;
    control_stage stage;
    COVScrollView& scroller = stage.add(new COVScrollView({0, 0, 200, 100}, {0, 0, 200, 100}, 0));
    preview_view& view = *new preview_view({0, 0, 200, 100});
};

const CColor red(255, 0, 0), green(0, 255, 0), blue(0, 0, 255);

struct to_green : row_renderer
{
    void render_row(std::size_t, const argb_float*, argb_float* out, std::size_t count) const override
    {
        std::fill_n(out, count, argb_float{1, 0, 1, 0});
    }
};

TEST_F(preview, draws_before_after_or_both_and_a_trial_in_place_of_after)
{
    const struct
    {
        const char* what;
        comparison mode;
        bool has_trial;
        CColor left, right; ///< of a split line at a quarter of the width
    } cases[] = {
        {"after", comparison::after, false, blue, blue},       {"before", comparison::before, false, red, red},
        {"split", comparison::split, false, red, blue},        {"trial", comparison::after, true, green, green},
        {"trial, split", comparison::split, true, red, green}, {"trial, before", comparison::before, true, red, red},
    };
    view.set_split(0.25);
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.what);
        view.set_comparison(c.mode);
        view.show_trial(c.has_trial ? std::make_shared<to_green>() : nullptr);
        EXPECT_EQ(drawn_at(40, 20), c.left);
        EXPECT_EQ(drawn_at(60, 20), c.right);
    }
}

TEST_F(preview, the_split_line_follows_the_mouse_within_the_picture)
{
    view.set_comparison(comparison::split);
    stage.press(120, 50); // beside the line, which is at 100
    stage.drag(150, 50);
    stage.release(150, 50);
    EXPECT_EQ(view.get_split(), 0.5);
    stage.press(104, 50);
    stage.drag(150, 50);
    EXPECT_NEAR(view.get_split(), 0.75, 1e-9);
    stage.drag(999, 50);
    stage.release(999, 50);
    EXPECT_EQ(view.get_split(), 1.0);
}

TEST_F(preview, the_colour_under_the_mouse_is_that_of_the_picture_pixel)
{
    const struct
    {
        VSTGUI::CPoint where;
        int x, y;
        std::uint32_t before, after;
    } cases[] = {
        {{1.9, 1.9}, 0, 0, 0xffffff00, 0xff00ffff},
        {{2.1, 1.9}, 1, 0, 0xffff0000, 0xff0000ff},
        {{199, 99}, 99, 49, 0xffff0000, 0xff0000ff},
    };
    for (const auto& c : cases)
    {
        const auto picked = view.pick_colour(c.where);
        ASSERT_TRUE(picked);
        EXPECT_EQ(picked->x, c.x);
        EXPECT_EQ(picked->y, c.y);
        EXPECT_EQ(picked->before, c.before);
        EXPECT_EQ(picked->after, c.after);
    }
    EXPECT_FALSE(view.pick_colour({200.5, 50}));
}

TEST_F(preview, a_zoom_keeps_the_point_under_the_mouse_where_it_is)
{
    EXPECT_TRUE(scroller.isFitted());
    scroller.setZoom(4, {50, 25}); // picture pixel 25, 12.5
    EXPECT_FALSE(scroller.isFitted());
    EXPECT_EQ(scroller.getScrollOffset(), VSTGUI::CPoint(-50, 25)) << "x as the toolkit counts it, to the left";
    stage.turn_wheel_up({150, 75}); // to 6: pixel 50, 25 is at 300, 150 of the content
    EXPECT_EQ(scroller.getZoom(), 6);
    EXPECT_EQ(scroller.getScrollOffset(), VSTGUI::CPoint(-150, 75));
    scroller.panBy(1000, -1000);
    EXPECT_EQ(scroller.getScrollOffset(), VSTGUI::CPoint(0, 200)) << "300 less the 100 of the view";
}

} // namespace
} // namespace ov1

#include "editor/scopes/scopes_panel.h"
#include "ov_source/editor/controls/widgets/control_stage.h"
#include "shared/argb_float.h"
#include "shared/image.h"
#include "vstgui/lib/vstguiinit.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

class panel_of_scopes : public testing::Test
{
protected:
    static void SetUpTestSuite() { VSTGUI::init(nullptr); }
    static void TearDownTestSuite() { VSTGUI::exit(); }

    panel_of_scopes()
    {
        std::fill_n(reinterpret_cast<argb_float*>(frame.pixels()), 64 * 48, argb_float{1, 0.75f, 0, 0});
        panel.set_frame_listener([this] { ++frames_wanted; });
        panel.set_choice_listener([this] { ++choices; });
    }
    void click(double x, double y)
    {
        stage.press(x, y);
        stage.release(x, y);
        panel.idle();
    }
    /// Whether anything coloured is drawn in a part of the panel: the trace of red, not the grey scale.
    bool shows_red(const VSTGUI::CRect& part)
    {
        const auto picture = painted(300, 300, [&](auto& context) { panel.drawRect(&context, panel.getViewSize()); });
        for (double y = part.top; y < part.bottom; y += 0.5)
            for (double x = part.left; x < part.right; x += 0.5)
                if (const auto c = pixel(*picture, x, y); c.red > c.blue + 60)
                    return true;
        return false;
    }

    image frame{64, 48, image::pixel_type::argb_f32, image::origin::top_left};
    control_stage stage;
    scopes_panel& panel = stage.add(new scopes_panel({0, 0, 300, 300}, language_id::english));
    int frames_wanted = 0;
    int choices = 0;
};

constexpr VSTGUI::CRect lower_scope(0, 186, 300, 300);

TEST_F(panel_of_scopes, while_hidden_it_computes_nothing_and_asks_for_a_frame_when_shown)
{
    panel.update(frame);
    EXPECT_TRUE(shows_red(lower_scope)) << "the vectorscope beneath the waveform";
    panel.setVisible(false);
    std::fill_n(reinterpret_cast<argb_float*>(frame.pixels()), 64 * 48, argb_float{1, 0.5f, 0.5f, 0.5f});
    panel.idle();
    panel.update(frame);
    panel.setVisible(true);
    EXPECT_EQ(frames_wanted, 1);
    panel.idle();
    EXPECT_FALSE(shows_red(lower_scope)) << "an old frame's trace";
}

TEST_F(panel_of_scopes, clicks_choose_scopes_and_cannot_hide_the_last_one)
{
    panel.update(frame);
    panel.set_frame_listener(
        [this]
        {
            ++frames_wanted;
            panel.update(frame);
        });
    const struct
    {
        const char* what;
        double x, y;
        scope_choice expected;
        int frames_wanted;
        bool is_refused = false;
    } clicks[] = {
        {"vectorscope off", 186, 15, {{.waveform = true}}, 0},
        {"waveform off, the last", 40, 15, {{.waveform = true}}, 0, true},
        {"histogram on", 260, 15, {{.waveform = true, .histogram = true}}, 1},
        {"vectorscope on again", 186, 15, {{.waveform = true, .vectorscope = true, .histogram = true}}, 2},
        {"skin line", 270, 131, {{.waveform = true, .vectorscope = true, .histogram = true}, true}, 2},
    };
    for (const auto& c : clicks)
    {
        SCOPED_TRACE(c.what);
        const int before = choices;
        click(c.x, c.y);
        EXPECT_EQ(panel.get_choice(), c.expected);
        EXPECT_EQ(frames_wanted, c.frames_wanted);
        EXPECT_EQ(choices - before, c.is_refused ? 0 : 1);
    }
}

TEST_F(panel_of_scopes, pictures_follow_size_zoom_and_frames)
{
    panel.set_choice({{.vectorscope = true}});
    panel.update(frame);
    panel.idle();
    EXPECT_TRUE(shows_red({0, 54, 300, 300}));
    stage.frame->setZoom(2);
    panel.idle();
    EXPECT_TRUE(shows_red({0, 54, 300, 300})) << "drawn anew from the counts, without a frame";
    panel.setViewSize({0, 0, 200, 120});
    panel.idle();
    EXPECT_TRUE(shows_red({0, 54, 200, 120}));
    EXPECT_FALSE(shows_red({201, 0, 300, 300}));
    EXPECT_EQ(frames_wanted, 1) << "for the first choice, before any frame";
}

} // namespace
} // namespace ov1

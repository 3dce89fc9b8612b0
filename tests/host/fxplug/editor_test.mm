// From the button to the editor and back, with an editor that runs a script.
#include "support/bridge_fixture.h"

#include "framework/parameters/iparameter_v1.h"
#include "host/fxplug/run_loop.h"

namespace ov1
{
namespace
{

struct editor_road : bridge_fixture
{
    editor_road() { host.set_frame(rgba_picture(64, 48), surface_format::half); }
};

TEST_F(editor_road, button_frame_editor_and_one_state_back_at_the_host)
{
    host.set_playhead(CMTimeMake(3, 24));
    host.set_input_offset(2); // the preview is the input's frame, not the timeline's
    std::size_t undo_steps = 0;
    editor->script = {[&] { undo_steps = host.get_parameters().get_undo_count(); },
                      [&] { set(bridge_component::amount, param_cell::of(64.5f)); },
                      [&]
                      {
                          EXPECT_TRUE(gui_is_open());
                          EXPECT_EQ(at_host(2), store_value(12.5)) << "nothing before the editor is closed";
                      }};
    press_and_run();
    CMTimeRange asked{};
    ASSERT_TRUE([plugin() desiredAnalysisTimeRange:&asked forInputWithTimeRange:{} error:NULL]);
    EXPECT_EQ(CMTimeCompare(asked.start, CMTimeMake(3750 + 2 * 1001, 30000)), 0) << "1/8 s and two frames";
    EXPECT_EQ(CMTimeCompare(asked.duration, CMTimeMake(1001, 30000)), 0);
    EXPECT_EQ(editor->source_width, 64u);
    EXPECT_EQ(editor->previews, 0) << "the test component hands no previews on";
    EXPECT_FALSE(gui_is_open());
    EXPECT_EQ(at_host(2), store_value(64.5));
    EXPECT_EQ(host.get_parameters().get_undo_count(), undo_steps + 2) << "the state, and the one parameter";
    EXPECT_EQ(host.get_parameters().get_open_actions(), 0);
}

TEST_F(editor_road, a_second_press_raises_the_window_and_harms_nothing)
{
    simulated_host second_host;
    ASSERT_TRUE(second_host.create_instance(error));
    auto* const second = static_cast<fcp_wrapper_veridialfcpx_3_7_0_0*>(second_host.get_plugin());
    editor->script = {[&] { [plugin() handleGUIButton]; }, [&] { [second handleGUIButton]; },
                      [] { turn_run_loop_once(); }, [&] { EXPECT_EQ(window->raises, 2); }};
    press_and_run();
    EXPECT_EQ(editor->step, 5u);
    EXPECT_EQ(second_host.get_parameters().get_undo_count(), 0u) << "the other instance has nothing to report";
}

TEST_F(editor_road, a_frame_that_cannot_be_had_keeps_the_request)
{
    const struct
    {
        const char* name;
        std::function<void(bool)> spoil;
        long code;
    } rows[] = {
        {"no lock", [&](bool on) { host.refuse_analysis_locks(on); }, 0},
        {"empty frame",
         [&](bool on) { host.set_frame(on ? rgba_picture(0, 0) : rgba_picture(64, 48), surface_format::half); }, 0},
        {"no timing", [&](bool on) { host.refuse_interface("FxTimingAPI_v4", on); }, 29},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        editor->step = 0;
        row.spoil(true);
        [plugin() handleGUIButton];
        const host_error said = host.wait_for_analysis();
        EXPECT_EQ(said.code, row.code);
        EXPECT_NE(said.description, "") << "the analysis was cancelled";
        if (row.code == 29)
            EXPECT_EQ(said.description, "Error requesting analysis time range.");
        EXPECT_EQ(editor->step, 0u);
        row.spoil(false);
        press_and_run();
        EXPECT_GT(editor->step, 0u) << "the next press works";
    }
}

TEST_F(editor_road, an_analysed_frame_is_taken_only_when_it_was_asked_for)
{
    FxImageTile* const unsupported =
        [[[FxImageTile alloc] initWithSurface:[[[IOSurface alloc] initWithShape:{8, 8, 0x42475241, 4, 32}] autorelease]
            tileBounds:{}
            imageBounds:{}
            origin:0] autorelease];
    NSError* said = nil;
    EXPECT_TRUE([plugin() analyzeFrame:unsupported atTime:kCMTimeZero error:&said]) << "nothing is pending";
    host.set_playhead(CMTimeMake(1, 2));
    host.refuse_interface("FxTimingAPI_v4"); // the analysis ends before a frame comes
    [plugin() handleGUIButton];
    host.wait_for_analysis();
    EXPECT_TRUE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(1, 3) error:&said]) << "another frame";
    EXPECT_FALSE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(2, 4) error:&said]) << "the same time";
    EXPECT_EQ([said code], 18);
    EXPECT_EQ([[unsupported ioSurface] openLocks], 0);
    EXPECT_FALSE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(1, 2) error:NULL]) << "and still pending";
}

TEST_F(editor_road, without_an_editor_the_state_is_pushed_all_the_same)
{
    install_editor_factory({});
    const auto before = at_host(1, store_archive());
    [plugin() runGUI];
    EXPECT_NE(at_host(1, store_archive()), before);
    EXPECT_FALSE(gui_is_open());
}

} // namespace
} // namespace ov1

// Opening the editor from the host: button, analysed frame, a scripted editor, the result at the host.
#include "support/bridge_fixture.h"

#include "framework/parameters/iparameter_v1.h"
#include "host/fxplug/run_loop.h"

namespace ov1
{
namespace
{

struct bridge_editor : bridge_fixture
{
    bridge_editor() { host.set_frame(rgba_picture(64, 48), surface_format::half); }
};

TEST_F(bridge_editor, the_button_opens_it_on_the_current_frame_and_the_host_gets_the_result)
{
    host.set_playhead(CMTimeMake(3, 24));
    host.set_input_offset(2); // the preview is the input's frame, not the timeline's
    std::size_t undo_steps = 0;
    editor->script = {[&] { undo_steps = host.get_parameters().get_undo_count(); },
                      [&] { set(bridge_component::amount, param_cell::of(64.5f)); },
                      [&]
                      {
                          EXPECT_TRUE(gui_is_open());
                          EXPECT_EQ(at_host(2), store_value(12.5))
                              << "the host gets nothing before the editor is closed";
                      }};
    press_and_run();
    CMTimeRange asked{};
    ASSERT_TRUE([plugin() desiredAnalysisTimeRange:&asked forInputWithTimeRange:{} error:NULL]);
    EXPECT_EQ(CMTimeCompare(asked.start, CMTimeMake(3750 + 2 * 1001, 30000)), 0) << "1/8 s and two frames";
    EXPECT_EQ(CMTimeCompare(asked.duration, CMTimeMake(1001, 30000)), 0);
    EXPECT_EQ(editor->source_widths, std::vector<std::uint32_t>{64});
    EXPECT_FALSE(gui_is_open());
    EXPECT_EQ(at_host(2), store_value(64.5));
    EXPECT_EQ(host.get_parameters().get_undo_count(), undo_steps + 2) << "the state, and the one parameter";
    EXPECT_EQ(host.get_parameters().get_open_actions(), 0);
}

TEST_F(bridge_editor, a_second_press_only_raises_the_window)
{
    simulated_host second_host;
    ASSERT_TRUE(second_host.create_instance());
    auto* const second = static_cast<fcp_wrapper_veridialfcpx_3_7_0_0*>(second_host.get_plugin());
    editor->script = {[&] { [plugin() handleGUIButton]; }, [&] { [second handleGUIButton]; },
                      [] { run_main_loop_once(); }, [&] { EXPECT_EQ(window->raises, 2); }};
    press_and_run();
    EXPECT_EQ(editor->step, 5u);
    EXPECT_EQ(second_host.get_parameters().get_undo_count(), 0u) << "nothing changed in the other instance";
}

TEST_F(bridge_editor, without_a_frame_it_does_not_open_and_the_next_press_works)
{
    const struct
    {
        const char* name;
        std::function<void(bool)> spoil;
        const char* reason;
    } rows[] = {
        {"no lock", [&](bool on) { host.refuse_analysis_locks(on); }, "the effect gave no reason"},
        {"empty frame",
         [&](bool on) { host.set_frame(on ? rgba_picture(0, 0) : rgba_picture(64, 48), surface_format::half); },
         "the effect gave no reason"},
        {"no timing", [&](bool on) { host.refuse_interface("FxTimingAPI_v4", on); },
         "Error requesting analysis time range."},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        editor->step = 0;
        row.spoil(true);
        [plugin() handleGUIButton];
        const auto analysed = host.wait_for_analysis();
        ASSERT_FALSE(analysed) << "the analysis is cancelled";
        EXPECT_EQ(analysed.error().reason, row.reason);
        EXPECT_EQ(editor->step, 0u);
        row.spoil(false);
        press_and_run();
        EXPECT_GT(editor->step, 0u);
    }
}

TEST_F(bridge_editor, an_analysed_frame_is_captured_only_when_it_was_requested)
{
    FxImageTile* const unsupported =
        [[[FxImageTile alloc] initWithSurface:[[[IOSurface alloc] initWithShape:{8, 8, 0x42475241, 4, 32}] autorelease]
            tileBounds:{}
            imageBounds:{}
            origin:0] autorelease];
    NSError* error = nil;
    EXPECT_TRUE([plugin() analyzeFrame:unsupported atTime:kCMTimeZero error:&error]) << "nothing is pending";
    host.set_playhead(CMTimeMake(1, 2));
    host.refuse_interface("FxTimingAPI_v4"); // the analysis ends before a frame comes
    [plugin() handleGUIButton];
    (void)host.wait_for_analysis();
    EXPECT_TRUE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(1, 3) error:&error]) << "another frame";
    EXPECT_FALSE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(2, 4) error:&error]) << "the same time";
    EXPECT_EQ([error code], 18);
    EXPECT_EQ([[unsupported ioSurface] openLocks], 0);
    EXPECT_FALSE([plugin() analyzeFrame:unsupported atTime:CMTimeMake(1, 2) error:NULL])
        << "the request is still pending";
}

TEST_F(bridge_editor, without_an_editor_the_state_is_pushed_nevertheless)
{
    install_editor_factory({});
    const auto before = at_host(1);
    [plugin() runGUI];
    EXPECT_NE(at_host(1), before);
    EXPECT_FALSE(gui_is_open());
}

} // namespace
} // namespace ov1

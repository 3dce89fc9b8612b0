// An edit from end to end: button, analysed frame, the real editor, a drag, the result at the host and in its document,
// which a host in another process then renders. CTest runs it under an X server of its own.
#include "editor/editor_guard.h"
#include "editor/veridial_ui.h"
#include "framework/icomponent_v1.h"
#include "host/simulator/inspector.h"
#include "host/simulator/verbs/picture_file.h"
#include "support/temp_folder.h"

#import "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"

#include <fstream>
#include <functional>
#include <gtest/gtest.h>

/// Target of a timer on the main run loop, which also runs while the editor is open.
@interface timer_driver : NSObject
{
@public
    std::function<void()> step;
}
- (void)tick:(NSTimer*)timer;
@end

@implementation timer_driver
- (void)tick:(NSTimer*)timer
{
    step();
}
@end

namespace ov1
{
namespace
{

/// Drags the handle of a pad in the panel.
void drag_over(veridial_ui& editor, COVColorWheelXYPad& pad)
{
    VSTGUI::CFrame& frame = *editor.getFrame();
    const VSTGUI::CRect place = pad.translateToGlobal(pad.getViewSize(), false);
    const VSTGUI::CPoint from = place.getCenter(), to = from + VSTGUI::CPoint(place.getWidth() / 5, 9);
    VSTGUI::MouseDownEvent press(from, VSTGUI::MouseButton::Left);
    VSTGUI::MouseMoveEvent move(to, VSTGUI::MouseButton::Left);
    VSTGUI::MouseUpEvent release(to, VSTGUI::MouseButton::Left);
    frame.dispatchEvent(press);
    frame.dispatchEvent(move);
    frame.dispatchEvent(release);
}

void press_button(inspector& window)
{
    NSView* const view = static_cast<NSView*>(window.get_effect_view());
    [static_cast<NSButton*>([[view subviews] objectAtIndex:0]) performClick:nil];
}

TEST(simulator_editor, an_edit_reaches_the_host_its_document_and_another_process)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    [NSApplication sharedApplication];
    const editor_guard editor;
    temp_folder folder;
    const std::string photo = PHOTO, document = folder / "grade.plist", here = folder / "here.png",
                      there = folder / "there.png";
    const auto file = read_picture(photo);
    ASSERT_TRUE(file) << file.error().reason;
    simulated_host host;
    ASSERT_TRUE(host.create_instance());
    host.add_to_document();
    host.set_frame(file->picture, surface_format::half);
    const auto component = [static_cast<id>(host.get_plugin()) getComponent];
    const auto before = host.get_parameters().copy();
    const std::size_t undo_steps = host.get_parameters().get_undo_count();
    inspector window(host, "Inspector");

    timer_driver* const driver = [[[timer_driver alloc] init] autorelease];
    int ticks = 0;
    bool opened = false;
    driver->step = [&]
    {
        auto* const ui = dynamic_cast<veridial_ui*>(component->get_view().get());
        if (ui == nullptr || !ui->is_open() || ui->getFrame() == nullptr)
            return;
        ++ticks;
        if (ticks == 3)
            drag_over(*ui, *ui->get_controls().pads[1]);
        else if (ticks == 5)
            press_button(window); // a second press only raises the window
        else if (ticks == 8)
            ui->close();
        opened = true;
    };
    NSTimer* const timer = [NSTimer timerWithTimeInterval:0.02
                                                   target:driver
                                                 selector:@selector(tick:)
                                                 userInfo:nil
                                                  repeats:YES];
    [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    press_button(window);
    for (int i = 0; i < 400 && !(opened && !gui_is_open()); ++i)
        [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
    [timer invalidate];
    ASSERT_TRUE(opened) << "the editor never opened";

    std::vector<std::uint32_t> changed;
    for (const auto& [number, p] : host.get_parameters().copy())
        if (!same_values(p, before.at(number)))
            changed.push_back(number);
    ASSERT_EQ(changed.size(), 3u) << "the state, a hue and a chroma";
    EXPECT_EQ(changed[0], 1u);
    EXPECT_EQ(host.get_parameters().get_undo_count(), undo_steps + 3) << "one state, two parameters";
    EXPECT_EQ(host.get_parameters().get_open_actions(), 0);

    const auto graded = host.render(file->picture);
    ASSERT_TRUE(graded) << graded.error().reason;
    EXPECT_FALSE(*graded == file->picture);
    const auto written = write_picture(here, *file, *graded, false);
    ASSERT_TRUE(written) << written.error().reason;
    const auto bytes = host.write_document();
    ASSERT_TRUE(bytes);
    std::ofstream(document, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes->data()), static_cast<std::streamsize>(bytes->size()));
    const std::string command = std::string("'") + VERIDIAL_HOST + "' render '" + photo + "' --document '" + document +
                                "' --tile 100 -o '" + there + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    EXPECT_EQ(text_of_file(there), text_of_file(here)) << "the same bits in another process";
    [pool drain];
}

} // namespace
} // namespace ov1

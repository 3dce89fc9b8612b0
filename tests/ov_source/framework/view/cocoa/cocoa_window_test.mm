// Run under a private X server.
#include "framework/view/cocoa/cocoa_window.h"

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

struct cocoa_window_test : ::testing::Test
{
    cocoa_window_test() { [NSApplication sharedApplication]; }
    ~cocoa_window_test() override { [pool drain]; }

    NSWindow* native(const cocoa_window& w) { return [static_cast<NSView*>(w.get_native_handle()) window]; }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
};

TEST_F(cocoa_window_test, is_open_until_the_user_or_the_program_closes_it)
{
    cocoa_window by_user({0, 0, 1030, 540}, "Größe"), by_program({0, 0, 1030, 540}, "B");
    EXPECT_TRUE(by_user.is_open() && by_program.is_open());
    EXPECT_STREQ([[native(by_user) title] UTF8String], "Größe");
    EXPECT_EQ([[native(by_user) contentView] frame].size.width, 1030);
    [native(by_user) close];
    EXPECT_FALSE(by_user.is_open());
    by_program.close();
    EXPECT_FALSE(by_program.is_open());
    EXPECT_FALSE([native(by_program) isVisible]);
}

TEST_F(cocoa_window_test, a_modal_session_ends_with_the_window_and_every_pump_calls_the_hook)
{
    cocoa_window w({0, 0, 1030, 540}, "A");
    int turns = 0;
    w.set_pump_hook([&] { ++turns; });
    EXPECT_FALSE(w.is_modal());
    w.begin_modal();
    EXPECT_TRUE(w.is_modal());
    w.pop_pending_messages();
    EXPECT_TRUE(w.is_modal());
    [NSApp stopModal];
    w.pop_pending_messages();
    EXPECT_FALSE(w.is_modal()) << "stopped";
    EXPECT_EQ(turns, 2);
    w.begin_modal();
    w.close();
    EXPECT_FALSE(w.is_modal());
    w.begin_modal();
    EXPECT_FALSE(w.is_modal()) << "a closed window is not";
}

TEST_F(cocoa_window_test, a_new_size_is_reported_in_pixels_of_the_content)
{
    cocoa_window w({0, 0, 1030, 540}, "A");
    int width = 0, height = 0;
    w.set_resize_listener(
        [&](int x, int y)
        {
            width = x;
            height = y;
        });
    [native(w) setContentSize:NSMakeSize(1100, 600)];
    EXPECT_EQ(width, 1100);
    EXPECT_EQ(height, 600);
}

} // namespace
} // namespace ov1

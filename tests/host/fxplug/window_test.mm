// Tests that need a screen: the view with the button. CTest runs them under an X server of their own.
#include "support/bridge_fixture.h"

#import <objc/runtime.h>

namespace ov1
{
namespace
{

struct bridge_window : bridge_fixture
{
    bridge_window() { [NSApplication sharedApplication]; }
};

TEST_F(bridge_window, the_button_is_the_only_view)
{
    NSView* const view = [static_cast<NSView*>(host.create_view()) autorelease];
    ASSERT_EQ([[view subviews] count], 1u);
    NSButton* const button = [[view subviews] objectAtIndex:0];
    EXPECT_TRUE(NSEqualRects([view frame], NSMakeRect(0, 0, 124, 30)));
    EXPECT_TRUE(NSEqualRects([button frame], NSMakeRect(2, 2, 120, 24)));
    EXPECT_STREQ([[button title] UTF8String], "Open GUI...");
    EXPECT_TRUE([button target] == plugin() && sel_isEqual([button action], @selector(handleGUIButton)));
    EXPECT_TRUE([plugin() createViewForParameterID:2] == nil);
}

} // namespace
} // namespace ov1

// Tests that need a screen: the inspector. CTest runs them under an X server of their own.
#include "host/simulator/inspector.h"
#include "support/bridge_fixture.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace ov1
{
namespace
{

struct bridge_window : bridge_fixture
{
    bridge_window() { [NSApplication sharedApplication]; }
};

/// The inspector's sliders by their parameter's id, and the labels beside them.
void collect(NSView* view, std::map<NSInteger, NSSlider*>& sliders, std::vector<std::string>& labels)
{
    if ([view isKindOfClass:[NSSlider class]])
        sliders[[static_cast<NSSlider*>(view) tag]] = static_cast<NSSlider*>(view);
    else if ([view isKindOfClass:[NSTextField class]])
        labels.emplace_back([[static_cast<NSTextField*>(view) stringValue] UTF8String]);
    for (NSView* child in [view subviews])
        collect(child, sliders, labels);
}

TEST_F(bridge_window, the_inspector_has_a_slider_for_each_visible_float)
{
    EXPECT_TRUE([plugin() createViewForParameterID:2] == nil) << "only the state has a view";
    inspector shown(host, "Test");
    NSView* const root = [[static_cast<NSView*>(shown.get_effect_view()) window] contentView];
    std::map<NSInteger, NSSlider*> sliders;
    std::vector<std::string> labels;
    collect(root, sliders, labels);
    ASSERT_EQ(sliders.size(), 1u) << "only Amount; Secret is hidden, the others are no floats";
    NSSlider* const amount = sliders.at(2);
    EXPECT_EQ([amount minValue], -50);
    EXPECT_EQ([amount maxValue], 100);
    EXPECT_EQ([amount doubleValue], 12.5);
    EXPECT_EQ(std::ranges::count(labels, "12.50"), 1);

    [amount setDoubleValue:40];
    [amount sendAction:[amount action] to:[amount target]];
    EXPECT_EQ(value(bridge_component::amount).as_continuous(), 40.0f);
    EXPECT_TRUE(host.undo());
    shown.refresh();
    EXPECT_EQ([amount doubleValue], 12.5);
}

} // namespace
} // namespace ov1

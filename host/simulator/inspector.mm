#include "host/simulator/inspector.h"

#import <AppKit/AppKit.h>

#include <vector>

/// Target of the sliders' actions: sets the value in the host. A slider's tag is its parameter's id.
@interface inspector_target : NSObject
{
    ov1::simulated_host* host;
}
- (instancetype)initWithHost:(ov1::simulated_host*)owner;
- (void)sliderMoved:(NSSlider*)slider;
@end

@implementation inspector_target

- (instancetype)initWithHost:(ov1::simulated_host*)owner
{
    if ((self = [super init]))
        host = owner;
    return self;
}

- (void)sliderMoved:(NSSlider*)slider
{
    if (!host->edit(static_cast<std::uint32_t>([slider tag]), [slider doubleValue]))
        NSLog(@"The effect refused a value.");
}

@end

namespace ov1
{

namespace
{

// In points. The window cannot be resized, so every frame is computed once.
constexpr double row_height = 22, label_width = 190, slider_width = 200, number_width = 70, margin = 8;
constexpr double window_width = label_width + slider_width + number_width + 3 * margin + 20, window_height = 560;
constexpr NSTimeInterval refresh_period = 0.1; // seconds
// The host's bit, spelled out because this file includes no header of the host's interface.
constexpr std::uint32_t hidden_flag = 2;

NSTextField* make_label(NSRect frame, NSString* text)
{
    NSTextField* const label = [[[NSTextField alloc] initWithFrame:frame] autorelease];
    [label setStringValue:text];
    [label setEditable:NO];
    [label setBezeled:NO];
    [label setDrawsBackground:NO];
    return label;
}

} // namespace

struct inspector::parts
{
    struct row
    {
        std::uint32_t id;
        NSSlider* slider;
        NSTextField* text;
    };

    simulated_host& host;
    inspector_target* target = nil;
    NSWindow* window = nil;
    NSView* effect_view = nil;
    std::vector<row> rows;

    void add_row(NSView* to, double y, std::uint32_t id, const stored_parameter& p);
    NSView* make_rows();
};

// `to` owns the views; the row's pointers stay valid as long as the window exists.
void inspector::parts::add_row(NSView* to, double y, std::uint32_t id, const stored_parameter& p)
{
    [to addSubview:make_label(NSMakeRect(margin, y, label_width, row_height),
                              [NSString stringWithUTF8String:p.name.c_str()])];
    const NSRect place = NSMakeRect(margin + label_width, y, slider_width, row_height - 4);
    NSSlider* const slider = [[[NSSlider alloc] initWithFrame:place] autorelease];
    [slider setMinValue:p.min];
    [slider setMaxValue:p.max];
    [slider setTag:static_cast<NSInteger>(id)];
    [slider setTarget:target];
    [slider setAction:@selector(sliderMoved:)];
    NSTextField* const text =
        make_label(NSMakeRect(2 * margin + label_width + slider_width, y, number_width, row_height), @"");
    [to addSubview:slider];
    [to addSubview:text];
    rows.push_back({id, slider, text});
}

NSView* inspector::parts::make_rows()
{
    // Counted first: the list's height decides where its first row is.
    std::vector<std::pair<std::uint32_t, stored_parameter>> shown;
    for (auto& [id, p] : host.get_parameters().copy())
        if (std::holds_alternative<double>(p.value) && !(p.flags & hidden_flag))
            shown.emplace_back(id, p);
    const double height = row_height * static_cast<double>(shown.size()) + margin;
    NSView* const list = [[[NSView alloc] initWithFrame:NSMakeRect(0, 0, window_width - 20, height)] autorelease];
    // AppKit counts upwards, so the first row has the greatest y.
    double y = height - row_height;
    for (const auto& [id, p] : shown)
    {
        add_row(list, y, id, p);
        y -= row_height;
    }
    return list;
}

inspector::inspector(simulated_host& host, const std::string& title)
    : held(std::make_unique<parts>(host))
{
    @autoreleasepool
    {
        held->target = [[inspector_target alloc] initWithHost:&host];
        held->effect_view = static_cast<NSView*>(host.create_view());
        held->window = [[NSWindow alloc] initWithContentRect:NSMakeRect(40, 40, window_width, window_height)
                                                   styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
        [held->window setTitle:[NSString stringWithUTF8String:title.c_str()]];
        [held->window setReleasedWhenClosed:NO]; // the user may close it before the inspector is destroyed
        const double top = window_height - [held->effect_view frame].size.height - margin;
        [held->effect_view setFrameOrigin:NSMakePoint(margin, top)];
        [[held->window contentView] addSubview:held->effect_view];
        const NSRect below = NSMakeRect(0, 0, window_width, top - margin);
        NSScrollView* const scroller = [[[NSScrollView alloc] initWithFrame:below] autorelease];
        [scroller setHasVerticalScroller:YES];
        NSView* const list = held->make_rows();
        [scroller setDocumentView:list];
        // For the same reason the scroll view would show the last rows first.
        [list scrollPoint:NSMakePoint(0, [list frame].size.height)];
        [[held->window contentView] addSubview:scroller];
        [held->window center];
        [held->window makeKeyAndOrderFront:nil];
    }
    refresh();
}

inspector::~inspector()
{
    @autoreleasepool
    {
        // The target goes last: the sliders do not retain it.
        [held->window close];
        [held->window release];
        [held->effect_view release];
        [held->target release];
    }
}

bool inspector::is_open() const { return [held->window isVisible]; }
void* inspector::get_effect_view() const { return held->effect_view; }

void inspector::refresh()
{
    @autoreleasepool
    {
        for (const parts::row& row : held->rows)
        {
            const auto value = held->host.get_parameters().get(row.id, held->host.get_playhead());
            const auto* const number = value ? std::get_if<double>(&*value) : nullptr;
            // Only floats have a slider; a parameter never changes its type.
            if (number == nullptr)
                continue;
            [row.slider setDoubleValue:*number];
            [row.text setStringValue:[NSString stringWithFormat:@"%.2f", *number]];
        }
    }
}

void inspector::run()
{
    while (is_open())
    {
        @autoreleasepool
        {
            // The wait ends without an event too, so that changes made by the effect are shown.
            NSDate* const until = [NSDate dateWithTimeIntervalSinceNow:refresh_period];
            NSEvent* const event = [NSApp nextEventMatchingMask:static_cast<NSEventMask>(NSUIntegerMax)
                                                      untilDate:until
                                                         inMode:NSDefaultRunLoopMode
                                                        dequeue:YES];
            if (event != nil)
                [NSApp sendEvent:event];
        }
        refresh();
    }
}

} // namespace ov1

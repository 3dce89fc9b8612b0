#include "framework/view/cocoa/cocoa_window.h"

#import <AppKit/AppKit.h>

#include <atomic>
#include <utility>

namespace
{

/// What the window's delegate reports; outlives the window.
struct window_news
{
    /// Atomic, because is_open may be called on any thread.
    std::atomic<bool> open = true;
    std::function<void(int, int)> resized;
};

} // namespace

/// Records what the user does to the window.
@interface cocoa_window_delegate : NSObject
{
    window_news* news;
}
- (instancetype)initWithNews:(window_news*)place;
- (void)windowWillClose:(NSNotification*)notification;
- (void)windowDidResize:(NSNotification*)notification;
@end

@implementation cocoa_window_delegate

- (instancetype)initWithNews:(window_news*)place
{
    if ((self = [super init]))
        news = place;
    return self;
}

- (void)windowWillClose:(NSNotification*)notification
{
    (void)notification;
    news->open = false;
}

- (void)windowDidResize:(NSNotification*)notification
{
    // The content's size, without the title bar.
    const NSSize size = [[static_cast<NSWindow*>([notification object]) contentView] frame].size;
    if (news->resized)
        news->resized(static_cast<int>(size.width), static_cast<int>(size.height));
}

@end

namespace ov1
{

namespace
{

constexpr NSTimeInterval longest_wait = 0.025; // seconds
// The smallest content that fits the layout of the editor.
constexpr double least_width = 1024, least_height = 528;
constexpr NSUInteger style =
    NSWindowStyleMaskTitled | NSWindowStyleMaskClosable | NSWindowStyleMaskMiniaturizable | NSWindowStyleMaskResizable;

} // namespace

/// The window's objects. The delegate is retained here, because a window does not retain its own.
struct cocoa_window::parts
{
    window_news news;
    NSWindow* window = nil;
    cocoa_window_delegate* delegate = nil;
    NSModalSession session = nullptr;
    std::function<void()> pump_hook;
};

cocoa_window::cocoa_window(const rect& size, const std::string& title)
    : held(std::make_unique<parts>())
{
    @autoreleasepool
    {
        held->delegate = [[cocoa_window_delegate alloc] initWithNews:&held->news];
        held->window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                                                   styleMask:style
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
        [held->window setTitle:[NSString stringWithUTF8String:title.c_str()]];
        [held->window setReleasedWhenClosed:NO]; // owned by this object
        [held->window setContentMinSize:NSMakeSize(least_width, least_height)];
        [held->window setDelegate:static_cast<id>(held->delegate)];
        [held->window center];
        [held->window makeKeyAndOrderFront:nil];
    }
}

cocoa_window::~cocoa_window()
{
    @autoreleasepool
    {
        close();
        // The delegate is released before the window may be, so that no message reaches it afterwards.
        [held->window setDelegate:nil];
        [held->window release];
        [held->delegate release];
    }
}

void cocoa_window::close()
{
    // A session must end before its window leaves the screen.
    end_modal();
    @autoreleasepool
    {
        if ([held->window isVisible])
            [held->window orderOut:nil];
        if ([held->window isVisible])
            [held->window close];
    }
    held->news.open = false;
}

bool cocoa_window::is_open() const { return held->news.open; }
void* cocoa_window::get_native_handle() const { return [held->window contentView]; }

void cocoa_window::begin_modal()
{
    if (held->session == nullptr && is_open())
        held->session = [NSApp beginModalSessionForWindow:held->window];
}

void cocoa_window::end_modal()
{
    // Taken out first, so that a second call does nothing.
    if (const NSModalSession session = std::exchange(held->session, nullptr); session != nullptr)
        [NSApp endModalSession:session];
}

bool cocoa_window::is_modal() const { return held->session != nullptr; }

void cocoa_window::pop_pending_messages()
{
    @autoreleasepool
    {
        if (is_modal() && [held->window isVisible])
        {
            const NSInteger answer = [NSApp runModalSession:held->session];
            if (answer == NSModalResponseStop || answer == NSModalResponseAbort)
                end_modal();
        }
        // Waits for input; the event stays in the queue for the next call.
        [NSApp nextEventMatchingMask:static_cast<NSEventMask>(NSUIntegerMax)
                           untilDate:[NSDate dateWithTimeIntervalSinceNow:longest_wait]
                              inMode:NSModalPanelRunLoopMode
                             dequeue:NO];
        // Timers and other sources of both run loops, without waiting.
        [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate date]];
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate date]];
    }
    if (held->pump_hook)
        held->pump_hook();
}

void cocoa_window::set_pump_hook(std::function<void()> hook) { held->pump_hook = std::move(hook); }

void cocoa_window::raise()
{
    [NSApp activateIgnoringOtherApps:YES];
    [held->window makeKeyAndOrderFront:nil];
}

void cocoa_window::set_resize_listener(std::function<void(int width, int height)> listener)
{
    held->news.resized = std::move(listener);
}

} // namespace ov1

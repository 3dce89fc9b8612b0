#import <AppKit/AppKit.h>
#import <CoreFoundation/CoreFoundation.h>

#include "framework/view/toolkit_guard.h"

#include "vstgui/lib/cframe.h"
#include "vstgui/lib/vstguiinit.h"

namespace ov1
{

/// Empty: the system provides the run loop and the connection to the desktop. Programs that link cocoa_window install
/// it.
struct toolkit_guard::parts
{
};

toolkit_guard::parts* toolkit_guard::running = nullptr; // not needed: the system keeps everything

toolkit_guard::toolkit_guard()
    : held(std::make_unique<parts>())
{
    VSTGUI::init(CFBundleGetMainBundle()); // the toolkit reads its pictures there
}

toolkit_guard::~toolkit_guard() { VSTGUI::exit(); }

void toolkit_guard::process_events()
{
    // In seconds.
    constexpr NSTimeInterval longest_wait_s = 0.025;
    @autoreleasepool
    {
        NSEvent* const event = [NSApp nextEventMatchingMask:NSUIntegerMax // any
                                                  untilDate:[NSDate dateWithTimeIntervalSinceNow:longest_wait_s]
                                                     inMode:NSDefaultRunLoopMode
                                                    dequeue:YES];
        if (event)
            [NSApp sendEvent:event];
    }
}

bool toolkit_guard::open_frame(VSTGUI::CFrame& frame, void* native_handle)
{
    return native_handle && frame.open(native_handle, VSTGUI::PlatformType::kNSView);
}

} // namespace ov1

#include "host/fxplug/run_loop.h"

#import <AppKit/AppKit.h>

namespace ov1
{

void run_main_loop_once()
{
    // A pool per call: the editor stays open for minutes, and the host's own pool is drained only afterwards.
    @autoreleasepool
    {
        // A date in the past: fires what is due and returns.
        [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate date]];
        // Nil in a process that has not created an application object.
        NSApplication* const application = NSApp;
        if (application == nil)
            return;
        while (NSEvent* const event = [application nextEventMatchingMask:static_cast<NSEventMask>(NSUIntegerMax)
                                                               untilDate:[NSDate distantPast]
                                                                  inMode:NSDefaultRunLoopMode
                                                                 dequeue:YES])
            [application sendEvent:event];
    }
}

} // namespace ov1

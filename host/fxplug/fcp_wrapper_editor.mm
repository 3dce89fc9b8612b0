#import "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"

#include "framework/editor_session.h"
#include "host/fxplug/host_apis.h"
#include "host/fxplug/run_loop.h"

using namespace ov1;

// The linker's option -u names it. Without that the linker would leave out this file of the library: it contains only a
// category, and no other file refers to it by a symbol.
extern "C" const int wrapper_editor_is_linked = 1;

namespace
{

constexpr NSTimeInterval idle_period = 0.033; // seconds

/// The editor session that runs in this process; null when none does. Main thread.
editor_session*& running_session()
{
    static editor_session* running = nullptr;
    return running;
}

} // namespace

/// The timer's target instead of the instance itself. A timer retains its target, but the user may remove an instance
/// while it waits for a frame, and it must then be deallocated.
@interface idle_timer_target : NSObject
{
    fcp_wrapper_veridialfcpx_3_7_0_0* owner; // not retained: it invalidates the timer in its dealloc
}
- (instancetype)initWithOwner:(fcp_wrapper_veridialfcpx_3_7_0_0*)instance;
- (void)tick:(NSTimer*)timer;
@end

@implementation idle_timer_target

- (instancetype)initWithOwner:(fcp_wrapper_veridialfcpx_3_7_0_0*)instance
{
    if ((self = [super init]))
        owner = instance;
    return self;
}

- (void)tick:(NSTimer*)timer
{
    [owner runIdle:timer];
}

@end

@implementation fcp_wrapper_veridialfcpx_3_7_0_0 (editor)

- (void)handleGUIButton
{
    if (gui_is_open())
    {
        if (running_session() != nullptr)
            running_session()->raise();
        return;
    }
    {
        const std::scoped_lock guard(analyze_mutex);
        preview_image_source.reset();
        preview_image_dest.reset();
    }
    // Ignores analysed frames until the request below has been made.
    gui_requested = true;
    preview_render_requested = false;
    [self requestFrameAnalyisForPreview];
    [idleTimer invalidate];
    // Polled: the frame arrives on a thread of the host, and the editor must open on the main thread.
    idleTimer = [NSTimer timerWithTimeInterval:idle_period
                                        target:[[[idle_timer_target alloc] initWithOwner:self] autorelease]
                                      selector:@selector(tick:)
                                      userInfo:nil
                                       repeats:YES];
    [[NSRunLoop mainRunLoop] addTimer:idleTimer forMode:NSDefaultRunLoopMode];
}

- (void)requestFrameAnalyisForPreview
{
    id<FxCustomParameterActionAPI_v4> const action = action_api(_apiManager);
    if (action == nil)
        return;
    CMTime wanted = [action currentTime];
    // Frames are analysed at the input's time, which differs from the timeline's when the clip's start is cut off.
    // Without the interface the timeline's time stays.
    [timing_api(_apiManager) inputTime:&wanted fromTimelineTime:wanted];
    {
        const std::scoped_lock guard(time_mutex);
        preview_time = wanted;
    }
    // Outside the host's own calls, its interfaces work only within an action.
    [action startAction:self];
    id<FxAnalysisAPI> const analysis = analysis_api(_apiManager);
    if (analysis == nil)
        return; // without endAction: a host without analysis ends the action itself
    // Before the start: the frame may arrive on another thread before the call below returns.
    preview_render_requested = true;
    NSError* error = nil;
    if (![analysis startForwardAnalysis:kFxAnalysisLocation_GPU error:&error])
        NSLog(@"Analysis failed to start due to error: %@", error);
    [action endAction:self];
}

- (void)runIdle:(NSTimer*)timer
{
    // analyzeFrame: clears preview_render_requested when it has stored the frame.
    if (timer != idleTimer || !gui_requested || preview_render_requested || gui_is_open())
        return;
    {
        const std::scoped_lock guard(analyze_mutex);
        if (!preview_image_source)
            return;
    }
    // The host may release this instance while the editor is open.
    [[self retain] autorelease];
    [idleTimer invalidate];
    idleTimer = nil;
    gui_requested = false;
    [self runGUI];
}

- (void)runGUI
{
    // First, so that renders leave their tiles unchanged while the editor changes the values.
    gui_is_open() = true;
    editor_session session(component);
    {
        const std::scoped_lock guard(analyze_mutex);
        session.set_picture(preview_image_source, preview_image_dest);
    }
    running_session() = &session;
    editor_session_options options;
    // The editor's modal loop blocks this method, so it must run the main run loop itself.
    options.pump = run_main_loop_once;
    if (!session.run(options))
        NSLog(@"The editor cannot be opened here.");
    running_session() = nullptr;
    // With gui_is_open still set: the host may report what it gets here as changes, and those must be ignored.
    [self pushState];
    [self synchronizeHostParameters];
    gui_is_open() = false;
}

@end

// The plug-in class: the video host creates one object per effect and calls only it.
#pragma once

#include "framework/icomponent_v1.h"
#include "shared/image.h"

#import "host/fxplug/fcpx_state_param.h"
#import <FxPlug/FxPlugSDK.h>

#include <atomic>
#include <memory>
#include <mutex>

namespace ov1
{

/// Set while the editor of any instance is open. The editor then has the valid values: renders leave their tiles
/// unchanged and parameter changes from the host are ignored. Any thread.
std::atomic<bool>& gui_is_open();

} // namespace ov1

/// One instance of the effect in a document. Owns a component and synchronises its parameters with the host's, in both
/// directions. The host may call its methods on any thread; the editor's methods belong to the main thread.
@interface fcp_wrapper_veridialfcpx_3_7_0_0 : NSObject <FxTileableEffect, FxCustomParameterViewHost_v2, FxAnalyzer>
{
    id<PROAPIAccessing> _apiManager;               // not retained
    std::shared_ptr<ov1::icomponent_v1> component; // never null once the instance is initialised
    bool initialized;
    bool gui_requested;       // from the click on the button until the editor opens
    NSTimer* idleTimer;       // not retained, the run loop does; nil while no button press is pending
    fcpx_state_param* state;  // retained; the value that is pushed
    std::mutex analyze_mutex; // serialises pushState; guards the preview's images
    CMTime preview_time;      // guarded by time_mutex
    std::shared_ptr<ov1::image> preview_image_source; // the captured frame; null until it has come
    std::shared_ptr<ov1::image> preview_image_dest;   // of the same size, for the graded frame
    std::atomic<bool> preview_render_requested;       // from the request until the frame is captured
    std::mutex time_mutex; // not analyze_mutex: a host may ask for the time range during pushState
}

/// The effect of this instance, shared with renders and the editor.
- (std::shared_ptr<ov1::icomponent_v1>)getComponent;
/// The host's API manager, which the host keeps alive as long as the instance.
- (id<PROAPIAccessing>)getApiManager;

/// Writes to the host what the component changed: each queued parameter whose value differs from the host's.
- (void)synchronizeHostParameters;
/// Reads one parameter from the host into the component. NO for an unknown id or a missing host interface; YES when the
/// host refuses to give the value.
- (BOOL)synchronizeComponentParameter:(UInt32)hostID;
/// Restores the component from the host's State parameter. A damaged state is logged and changes nothing.
- (void)pullState;
/// Writes the component's state to the host's State parameter, as a value unlike all earlier ones. NO when the host
/// refuses it.
- (BOOL)pushState;
@end

/// Opening the editor: button, captured frame, editor session, result to the host.
@interface fcp_wrapper_veridialfcpx_3_7_0_0 (editor)
/// The button's action: requests the frame under the playhead and starts a timer that waits for it. While an editor is
/// open, only brings its window to the front.
- (void)handleGUIButton;
/// Asks the host to analyse the one frame under the playhead.
- (void)requestFrameAnalyisForPreview;
/// The timer's action: opens the editor when the frame has been captured.
- (void)runIdle:(NSTimer*)timer;
/// Runs the editor. Returns when it is closed and the host has the result.
- (void)runGUI;
@end

// The plug-in class: the one object of the effect that the video host talks to.
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

/// Set while an editor is open, in whatever instance: the editor is then the source of truth, so renders leave their
/// tiles alone and the host's changes are not taken. Any thread.
std::atomic<bool>& gui_is_open();

} // namespace ov1

/// One instance of the effect in a document. Owns a component and keeps its parameters and the host's in step both
/// ways. Methods that the host calls may come on any thread; those of the editor belong to the main thread.
@interface fcp_wrapper_veridialfcpx_3_7_0_0 : NSObject <FxTileableEffect, FxCustomParameterViewHost_v2, FxAnalyzer>
{
    id<PROAPIAccessing> _apiManager; // not retained
    std::shared_ptr<ov1::icomponent_v1> component;
    bool initialized;
    bool gui_requested; // between the button and the editor
    NSTimer* idleTimer;
    fcpx_state_param* state;
    std::mutex analyze_mutex; // serialises pushState; guards the preview's images
    CMTime preview_time;      // guarded by time_mutex
    std::shared_ptr<ov1::image> preview_image_source;
    std::shared_ptr<ov1::image> preview_image_dest;
    std::atomic<bool> preview_render_requested;
    std::mutex time_mutex; // for a host that asks for the time range amid pushState
}

- (std::shared_ptr<ov1::icomponent_v1>)getComponent;
- (id<PROAPIAccessing>)getApiManager;

/// Tells the host what the component changed: each queued parameter, where the host's value differs.
- (void)synchronizeHostParameters;
/// Takes one host parameter into the component. NO where there is no such parameter or the host lacks an interface.
- (BOOL)synchronizeComponentParameter:(UInt32)hostID;
/// The host's state into the component. What of it is refused is logged, and changes nothing.
- (void)pullState;
/// The component's state to the host, as a value that differs from all before. NO where the host does not take it.
- (BOOL)pushState;
@end

/// From the button to the editor and back.
@interface fcp_wrapper_veridialfcpx_3_7_0_0 (editor)
/// The button's action: asks for the frame under the playhead and waits for it with a timer. While an editor is open,
/// brings that to the front instead.
- (void)handleGUIButton;
- (void)requestFrameAnalyisForPreview;
- (void)runIdle:(NSTimer*)timer;
/// Opens the editor, and returns when it is closed and the host has its result.
- (void)runGUI;
@end

#import "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"

#include "framework/create_ccomponent.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"
#include "host/bridge/mapped_parameters.h"
#include "host/bridge/state_payload.h"
#include "host/fxplug/fcpx_host_interface.h"
#include "host/fxplug/fx_error.h"
#include "host/fxplug/host_apis.h"
#include "host/fxplug/host_values.h"
#include "host/fxplug/preview_capture.h"
#include "host/fxplug/render_tile.h"

#include <dispatch/dispatch.h>

using namespace ov1;

std::atomic<bool>& ov1::gui_is_open()
{
    static std::atomic<bool> open = false;
    return open;
}

namespace
{

NSString* key_text(const char* key) { return [NSString stringWithUTF8String:key]; }

/// What the host may assume about the effect.
NSDictionary* make_properties()
{
    NSMutableDictionary* const all = [NSMutableDictionary dictionary];
    const auto put = [&](const char* key, bool value)
    { [all setObject:[NSNumber numberWithBool:value ? YES : NO] forKey:key_text(key)]; };
    put(property_key::is_thread_safe, true);
    put(property_key::may_remap_time, true);
    put(property_key::uses_rational_time, true);
    put(property_key::varies_when_params_are_static, false);
    // Asks for one tile per frame. The code does not rely on it: every tile is rendered by itself.
    put(property_key::needs_full_buffer, true);
    put(property_key::preserves_alpha, true);
    put(property_key::changes_output_size, false);
    // Gamma-encoded pixels: the look tables are made for display-referred values, not for linear light.
    [all setObject:[NSNumber numberWithInt:kFxImageColorInfo_RGB_GAMMA_VIDEO]
            forKey:key_text(property_key::desired_processing_color_info)];
    return [[all copy] autorelease];
}

/// The component's host, which is the bridge's own object; null once the component has terminated.
std::shared_ptr<fcpx_host_interface> bridge_host_of(const std::shared_ptr<icomponent_v1>& component)
{
    return component ? std::dynamic_pointer_cast<fcpx_host_interface>(component->get_host()) : nullptr;
}

/// Writes the component's value to the host if the host's value differs or cannot be read.
void push_parameter(icomponent_v1& component, ihost_v1& host, int index, id<FxParameterRetrievalAPI_v6> retrieval,
                    id<FxParameterSettingAPI_v5> setting, CMTime time)
{
    const auto parameter = component.get_parameter(index);
    if (!parameter)
        return;
    const param_value record = parameter->get_param_value();
    const auto at_host = read_host_value(retrieval, host_control_of(record), host_id_of(index), time);
    if (at_host && !host_differs(*at_host, record))
        return;
    write_host_value(setting, host_value_of(record), host_id_of(index), time);
    host.schedule_render();
}

/// Restores the component from a document's payload. Parameters that replaced one of an older version are queued: the
/// host still has their old values, and the next read from the host would undo the restore.
void restore_payload(icomponent_v1& component, fcpx_host_interface* host, NSData* payload)
{
    const auto* const bytes = static_cast<const std::uint8_t*>([payload bytes]);
    std::vector<std::uint8_t> state(bytes, bytes + [payload length]);
    if (const auto checked = check_state_blob(state); !checked)
    {
        NSLog(@"The saved state is ignored: %s", checked.error().reason.c_str());
        return;
    }
    const auto before = copy_values(component);
    if (!component.set_state(state, true) || host == nullptr)
        return;
    for (const int index : mapped_parameters(component, before, state))
        host->add_dirty_param(index);
}

} // namespace

@implementation fcp_wrapper_veridialfcpx_3_7_0_0

- (instancetype)initWithAPIManager:(id<PROAPIAccessing>)apiManager
{
    if (!(self = [super init]))
        return nil;
    _apiManager = apiManager; // not retained, as the host's interface demands
    component = create_ccomponent();
    if (!component)
    {
        [self release];
        return nil;
    }
    // Only here: the host object needs a pointer to the finished component.
    component->initialize(std::make_shared<fcpx_host_interface>(component, apiManager));
    // The value objects that the host creates itself start with the state of an effect nobody has edited.
    [fcpx_state_param setDefaultState:component->get_state()];
    // After setDefaultState:, whose bytes it copies.
    state = [[fcpx_state_param alloc] init];
    initialized = false;
    gui_requested = false;
    preview_render_requested = false;
    preview_time = kCMTimeInvalid;
    return self;
}

- (void)dealloc
{
    // The run loop retains the timer, and the timer's target points to this object.
    [idleTimer invalidate];
    [state release];
    _apiManager = nil;
    // Another thread may hold the component a little longer; its events must not reach the host through this instance.
    if (const auto host = bridge_host_of(component))
        host->detach();
    if (component)
        component->terminate();
    [super dealloc];
}

- (std::shared_ptr<icomponent_v1>)getComponent
{
    return component;
}
- (id<PROAPIAccessing>)getApiManager
{
    return _apiManager;
}

- (BOOL)properties:(NSDictionary**)properties error:(NSError**)error
{
    *properties = make_properties();
    return YES;
}

- (BOOL)addParametersWithError:(NSError**)error
{
    id<FxParameterCreationAPI_v5> const creation = creation_api(_apiManager);
    if (creation == nil)
    {
        store_error(error, no_creation_api, "-[fcp_wrapper_veridialfcpx_3_7_0_0 addParametersWithError:]");
        return NO;
    }
    // The host calls this for a new instance, not for one that it loads with a document: there it has the parameters.
    [creation addCustomParameterWithName:key_text(state_parameter_name)
                             parameterID:state_host_id
                            defaultValue:state
                          parameterFlags:state_host_flags];
    for (const host_declaration& parameter : declare_parameters(*component))
        declare_at_host(creation, parameter);
    return YES;
}

- (void)synchronizeHostParameters
{
    const auto host = bridge_host_of(component);
    id<FxCustomParameterActionAPI_v4> const action = action_api(_apiManager);
    if (!host || action == nil)
        return;
    const CMTime now = [action currentTime];
    // One at a time: a write can make the component queue another parameter.
    for (int index = host->pop_dirty_param(); index >= 0; index = host->pop_dirty_param())
    {
        // One action per parameter: the host makes each an undo step of its own.
        [action startAction:self];
        id<FxParameterSettingAPI_v5> const setting = setting_api(_apiManager);
        id<FxParameterRetrievalAPI_v6> const retrieval = retrieval_api(_apiManager);
        if (setting != nil && retrieval != nil)
            push_parameter(*component, *host, index, retrieval, setting, now);
        [action endAction:self];
    }
}

- (BOOL)parameterChanged:(UInt32)paramID atTime:(CMTime)time error:(NSError**)error
{
    if (gui_is_open())
        return YES;
    if (![self synchronizeComponentParameter:paramID])
        return NO;
    // An edit can change other parameters of the effect, such as the lightness of a wheel along with its chroma.
    [self synchronizeHostParameters];
    return YES;
}

- (BOOL)synchronizeComponentParameter:(UInt32)hostID
{
    id<FxParameterRetrievalAPI_v6> const retrieval = retrieval_api(_apiManager);
    id<FxCustomParameterActionAPI_v4> const action = action_api(_apiManager);
    const auto parameter = component->get_parameter(index_of_host_id(static_cast<int>(hostID)));
    if (!parameter || retrieval == nil || action == nil)
        return NO;
    param_value record = parameter->get_param_value();
    if (const auto value =
            read_host_value(retrieval, host_control_of(record), static_cast<int>(hostID), [action currentTime]))
    {
        take_host_value(*value, record);
        parameter->set_param_value(record, true);
    }
    return YES;
}

- (BOOL)pluginState:(NSData**)pluginState
             atTime:(CMTime)renderTime
            quality:(FxQuality)qualityLevel
              error:(NSError**)error
{
    // The values go into the component itself; the render that follows needs no state object.
    if (pluginState != nullptr)
        *pluginState = nil;
    if (!gui_is_open())
        for (int index = 0; index < component->get_parameter_count(); ++index)
            [self synchronizeComponentParameter:static_cast<UInt32>(host_id_of(index))];
    return YES;
}

- (void)pluginInstanceAddedToDocument
{
    // The host calls this on a background queue, and a restore notifies the editor, which belongs to the main thread.
    [self performSelectorOnMainThread:@selector(pullState) withObject:nil waitUntilDone:YES];
}

- (Class)classForCustomParameterID:(UInt32)parameterID
{
    return parameterID == state_host_id ? [fcpx_state_param class] : Nil;
}

- (void)pullState
{
    id<FxCustomParameterActionAPI_v4> const action = action_api(_apiManager);
    if (action == nil)
        return;
    const CMTime now = [action currentTime];
    [action startAction:self];
    NSObject<NSSecureCoding, NSCopying>* value = nil;
    // Classes and length are checked: the value comes from a document.
    if ([retrieval_api(_apiManager) getCustomParameterValue:&value fromParameter:state_host_id atTime:now] &&
        [value isKindOfClass:[fcpx_state_param class]])
    {
        NSData* const payload = static_cast<fcpx_state_param*>(value).data;
        if ([payload isKindOfClass:[NSData class]] && [payload length] > 0)
            restore_payload(*component, bridge_host_of(component).get(), payload);
    }
    [action endAction:self];
    // Now, before the next render reads the host's values: see restore_payload.
    [self synchronizeHostParameters];
}

- (BOOL)pushState
{
    const std::scoped_lock guard(analyze_mutex);
    id<FxCustomParameterActionAPI_v4> const action = action_api(_apiManager);
    if (action == nil)
        return NO;
    const CMTime now = [action currentTime];
    [action startAction:self];
    BOOL taken = NO;
    if (id<FxParameterSettingAPI_v5> const setting = setting_api(_apiManager); setting != nil)
    {
        // Replaces the payload in the one value object; the host copies or archives it during the call.
        const auto payload = make_state_payload(component->get_state());
        state.data = [NSData dataWithBytes:payload.data() length:payload.size()];
        taken = [setting setCustomParameterValue:state toParameter:state_host_id atTime:now];
    }
    // The button was pressed and the frame has not come: ask for it again, within the same action.
    if (preview_render_requested)
    {
        id<FxAnalysisAPI> const analysis = analysis_api(_apiManager);
        if (analysis == nil)
            return taken; // without endAction: a host without analysis ends the action itself
        NSError* error = nil;
        if (![analysis startForwardAnalysis:kFxAnalysisLocation_GPU error:&error])
            NSLog(@"Analysis failed to start due to error: %@", error);
    }
    [action endAction:self];
    return taken;
}

- (BOOL)destinationImageRect:(FxRect*)destinationImageRect
                sourceImages:(NSArray*)sourceImages
            destinationImage:(FxImageTile*)destinationImage
                 pluginState:(NSData*)pluginState
                      atTime:(CMTime)renderTime
                       error:(NSError**)outError
{
    // The effect changes neither the size nor the place of the picture.
    *destinationImageRect = [static_cast<FxImageTile*>([sourceImages objectAtIndex:0]) imagePixelBounds];
    return YES;
}

- (BOOL)sourceTileRect:(FxRect*)sourceTileRect
       sourceImageIndex:(NSUInteger)sourceImageIndex
           sourceImages:(NSArray*)sourceImages
    destinationTileRect:(FxRect)destinationTileRect
       destinationImage:(FxImageTile*)destinationImage
            pluginState:(NSData*)pluginState
                 atTime:(CMTime)renderTime
                  error:(NSError**)outError
{
    // A pixel depends on no other pixel, so a tile needs only its own part of the source.
    *sourceTileRect = destinationTileRect;
    return YES;
}

- (BOOL)renderDestinationImage:(FxImageTile*)destinationImage
                  sourceImages:(NSArray*)sourceImages
                   pluginState:(NSData*)pluginState
                        atTime:(CMTime)renderTime
                         error:(NSError**)outError
{
    // While the editor is open, the tile keeps what the host put there.
    if (gui_is_open())
        return YES;
    return render_tile(*component, destinationImage, sourceImages, outError);
}

- (NSView*)createViewForParameterID:(UInt32)parameterID NS_RETURNS_RETAINED
{
    if (parameterID != state_host_id)
        return nil;
    NSView* const view = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, 124, 30)];
    NSButton* const button = [[[NSButton alloc] initWithFrame:NSMakeRect(2, 2, 120, 24)] autorelease];
    [button setTitle:key_text(gui_button_title)];
    [button setBezelStyle:static_cast<NSBezelStyle>(2)]; // regular square; the constant's name differs between SDKs
    [button setTarget:self];
    [button setAction:@selector(handleGUIButton)];
    [view addSubview:button];
    return view;
}

- (BOOL)desiredAnalysisTimeRange:(CMTimeRange*)desiredRange
           forInputWithTimeRange:(CMTimeRange)inputTimeRange
                           error:(NSError**)error
{
    id<FxTimingAPI_v4> const timing = timing_api(_apiManager);
    if (timing == nil)
    {
        store_error(error, no_timing_api);
        return NO;
    }
    // A frame lasts denominator / numerator seconds: 1001/30000 for 29.97 frames a second.
    const CMTime frame = CMTimeMake(static_cast<std::int64_t>([timing timelineFpsDenominatorForEffect:self]),
                                    static_cast<std::int32_t>([timing timelineFpsNumeratorForEffect:self]));
    const std::scoped_lock guard(time_mutex);
    *desiredRange = CMTimeRangeMake(preview_time, frame);
    return YES;
}

- (BOOL)setupAnalysisForTimeRange:(CMTimeRange)analysisRange frameDuration:(CMTime)frameDuration error:(NSError**)error
{
    return YES;
}

- (BOOL)analyzeFrame:(FxImageTile*)frame atTime:(CMTime)frameTime error:(NSError**)error
{
    const std::scoped_lock guard(analyze_mutex);
    {
        const std::scoped_lock time_guard(time_mutex);
        // A host may analyse more frames than the requested one. NO would cancel the analysis.
        if (!preview_render_requested || CMTimeCompare(frameTime, preview_time) != 0)
            return YES;
    }
    // The time lock is released here: the reduction takes long, and the host may ask for the time range meanwhile.
    const auto source = capture_preview(frame, error);
    // The request stays pending: another frame of the same time can still answer it.
    if (!source)
        return NO;
    // The host's frame is valid only during this call, so the editor gets a copy and renders into a second image.
    preview_image_source = source;
    preview_image_dest = std::make_shared<image>(source->get_width(), source->get_height(), source->get_pixel_type(),
                                                 source->get_origin());
    preview_render_requested = false;
    return YES;
}

- (BOOL)cleanupAnalysis:(NSError**)error
{
    return YES;
}

@end

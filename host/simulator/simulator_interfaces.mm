#include "host/simulator/simulator_core.h"
#include "host/simulator/value_archive.h"

/// Base of the host's interfaces. Each interface is an object of its own, so that the effect finds only the methods of
/// the protocol it asked for.
@interface simulator_interface : NSObject
{
@protected
    ov1::simulated_host::core* core;
}
- (instancetype)initWithCore:(ov1::simulated_host::core*)owner;
@end

@implementation simulator_interface
- (instancetype)initWithCore:(ov1::simulated_host::core*)owner
{
    if ((self = [super init]))
        core = owner;
    return self;
}
@end

namespace
{

using namespace ov1;

std::string text_of(NSString* text) { return text == nil ? std::string() : [text UTF8String]; }

stored_parameter described(NSString* name, FxParameterFlags flags, store_value value)
{
    stored_parameter p;
    p.name = text_of(name);
    p.flags = flags;
    p.default_value = std::move(value);
    return p;
}

/// False for an unknown id and for a parameter of another type than T; the value is then unchanged.
template <typename T, typename to>
bool get(const parameter_store& store, UInt32 id, CMTime time, to* value)
{
    const auto found = store.get(id, time);
    const T* const typed = found ? std::get_if<T>(&*found) : nullptr;
    if (value == nullptr || typed == nullptr)
        return false;
    *value = static_cast<to>(*typed);
    return true;
}

/// The interface gives both kinds of slider the same numbers. A step that is not positive and slider bounds outside the
/// parameter's are mistakes of the effect.
bool declare_slider(parameter_store& store, UInt32 id, stored_parameter p, double min, double max, double slider_min,
                    double slider_max, double delta)
{
    p.min = min;
    p.max = max;
    return min <= slider_min && slider_max <= max && delta > 0 && store.declare(id, std::move(p));
}

} // namespace

@interface simulator_parameter_creation : simulator_interface <FxParameterCreationAPI_v5>
@end

@implementation simulator_parameter_creation

- (BOOL)addFloatSliderWithName:(NSString*)name
                   parameterID:(UInt32)parameterID
                  defaultValue:(double)defaultValue
                  parameterMin:(double)min
                  parameterMax:(double)max
                     sliderMin:(double)sliderMin
                     sliderMax:(double)sliderMax
                         delta:(double)sliderDelta
                parameterFlags:(FxParameterFlags)flags
{
    return declare_slider(core->store, parameterID, described(name, flags, defaultValue), min, max, sliderMin,
                          sliderMax, sliderDelta);
}

- (BOOL)addIntSliderWithName:(NSString*)name
                 parameterID:(UInt32)parameterID
                defaultValue:(int)defaultValue
                parameterMin:(int)min
                parameterMax:(int)max
                   sliderMin:(int)sliderMin
                   sliderMax:(int)sliderMax
                       delta:(int)sliderDelta
              parameterFlags:(FxParameterFlags)flags
{
    return declare_slider(core->store, parameterID, described(name, flags, defaultValue), min, max, sliderMin,
                          sliderMax, sliderDelta);
}

- (BOOL)addToggleButtonWithName:(NSString*)name
                    parameterID:(UInt32)parameterID
                   defaultValue:(BOOL)defaultValue
                 parameterFlags:(FxParameterFlags)flags
{
    return core->store.declare(parameterID, described(name, flags, defaultValue != NO));
}

- (BOOL)addPopupMenuWithName:(NSString*)name
                 parameterID:(UInt32)parameterID
                defaultValue:(UInt32)defaultValue
                 menuEntries:(NSArray*)entries
              parameterFlags:(FxParameterFlags)flags
{
    stored_parameter p = described(name, flags, static_cast<int>(defaultValue));
    for (NSString* entry in entries)
        p.entries.push_back(text_of(entry));
    p.max = static_cast<double>(p.entries.size()) - 1; // bounds the index
    // A default without an entry is a mistake of the effect.
    return defaultValue < p.entries.size() && core->store.declare(parameterID, std::move(p));
}

- (BOOL)addColorParameterWithName:(NSString*)name
                      parameterID:(UInt32)parameterID
                       defaultRed:(double)red
                     defaultGreen:(double)green
                      defaultBlue:(double)blue
                     defaultAlpha:(double)alpha
                   parameterFlags:(FxParameterFlags)flags
{
    return core->store.declare(parameterID, described(name, flags, store_color{red, green, blue, alpha}));
}

- (BOOL)addCustomParameterWithName:(NSString*)name
                       parameterID:(UInt32)parameterID
                      defaultValue:(NSObject<NSSecureCoding, NSCopying>*)defaultValue
                    parameterFlags:(FxParameterFlags)flags
{
    // Kept as an archive, as documents keep it: each read then decodes a new object.
    return core->store.declare(parameterID, described(name, flags, archive_value(defaultValue)));
}

@end

@interface simulator_parameter_retrieval : simulator_interface <FxParameterRetrievalAPI_v6>
@end

@implementation simulator_parameter_retrieval

- (BOOL)getFloatValue:(double*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time
{
    return get<double>(core->store, parameterID, time, value);
}

- (BOOL)getIntValue:(int*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time
{
    return get<int>(core->store, parameterID, time, value);
}

- (BOOL)getBoolValue:(BOOL*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time
{
    return get<bool>(core->store, parameterID, time, value);
}

- (BOOL)getRedValue:(double*)red
         greenValue:(double*)green
          blueValue:(double*)blue
         alphaValue:(double*)alpha
      fromParameter:(UInt32)parameterID
             atTime:(CMTime)time
{
    store_color c;
    if (!get<store_color>(core->store, parameterID, time, &c))
        return NO;
    // All four or none: a refused read leaves the effect's variables unchanged.
    *red = c.red;
    *green = c.green;
    *blue = c.blue;
    *alpha = c.alpha;
    return YES;
}

- (BOOL)getCustomParameterValue:(NSObject<NSSecureCoding, NSCopying>**)value
                  fromParameter:(UInt32)parameterID
                         atTime:(CMTime)time
{
    store_archive archive;
    if (!get<store_archive>(core->store, parameterID, time, &archive))
        return NO;
    // The effect names the class that it expects, as for a document of a real host.
    const auto unarchived = unarchive_value(archive, [core->plugin classForCustomParameterID:parameterID]);
    *value = unarchived ? *unarchived : nil;
    return *value != nil;
}

- (BOOL)getParameterFlags:(FxParameterFlags*)flags fromParameter:(UInt32)parameterID
{
    return core->store.get_flags(parameterID, *flags);
}

@end

@interface simulator_parameter_setting : simulator_interface <FxParameterSettingAPI_v6>
@end

@implementation simulator_parameter_setting

- (BOOL)setFloatValue:(double)value toParameter:(UInt32)parameterID atTime:(CMTime)time
{
    // The time is used only if the parameter has keyframes.
    return core->store.set(parameterID, time, value);
}

- (BOOL)setIntValue:(int)value toParameter:(UInt32)parameterID atTime:(CMTime)time
{
    return core->store.set(parameterID, time, value);
}

- (BOOL)setBoolValue:(BOOL)value toParameter:(UInt32)parameterID atTime:(CMTime)time
{
    return core->store.set(parameterID, time, value != NO);
}

- (BOOL)setRedValue:(double)red
         greenValue:(double)green
          blueValue:(double)blue
         alphaValue:(double)alpha
        toParameter:(UInt32)parameterID
             atTime:(CMTime)time
{
    return core->store.set(parameterID, time, store_color{red, green, blue, alpha});
}

- (BOOL)setCustomParameterValue:(NSObject<NSSecureCoding, NSCopying>*)value
                    toParameter:(UInt32)parameterID
                         atTime:(CMTime)time
{
    return core->store.set(parameterID, time, archive_value(value));
}

- (BOOL)setParameterFlags:(FxParameterFlags)flags toParameter:(UInt32)parameterID
{
    return core->store.set_flags(parameterID, flags);
}

- (BOOL)addFlags:(FxParameterFlags)flags toParameter:(UInt32)parameterID
{
    FxParameterFlags now = 0;
    return core->store.get_flags(parameterID, now) && core->store.set_flags(parameterID, now | flags);
}

- (BOOL)removeFlags:(FxParameterFlags)flags fromParameter:(UInt32)parameterID
{
    FxParameterFlags now = 0;
    return core->store.get_flags(parameterID, now) && core->store.set_flags(parameterID, now & ~flags);
}

@end

@interface simulator_actions : simulator_interface <FxCustomParameterActionAPI_v4>
@end

@implementation simulator_actions

- (void)startAction:(id)sender
{
    core->store.begin_action();
}

- (void)endAction:(id)sender
{
    core->store.end_action();
}

- (CMTime)currentTime
{
    return core->current_time();
}

@end

@interface simulator_timing : simulator_interface <FxTimingAPI_v4>
@end

@implementation simulator_timing

- (void)inputTime:(CMTime*)inputTime fromTimelineTime:(CMTime)time
{
    // A clip whose first frames are cut off: the input is ahead of the timeline.
    *inputTime = core->frames_later(time, core->input_offset);
}

- (NSUInteger)timelineFpsNumeratorForEffect:(id<FxTileableEffect>)effect
{
    return static_cast<NSUInteger>(core->rate_numerator);
}

- (NSUInteger)timelineFpsDenominatorForEffect:(id<FxTileableEffect>)effect
{
    return static_cast<NSUInteger>(core->rate_denominator);
}

@end

@interface simulator_analysis : simulator_interface <FxAnalysisAPI>
@end

@implementation simulator_analysis

- (FxAnalysisState)analysisStateForEffect
{
    const std::scoped_lock guard(core->lock);
    return core->analysis_state;
}

- (BOOL)startForwardAnalysis:(FxAnalysisLocation)location error:(NSError**)error
{
    // The location, GPU or CPU, makes no difference here.
    if (core->start_analysis())
        return YES;
    if (error != nullptr)
        *error = [NSError errorWithDomain:FxPlugErrorDomain code:kFxError_AnalysisError userInfo:nil];
    return NO;
}

- (BOOL)startBackwardAnalysis:(FxAnalysisLocation)location error:(NSError**)error
{
    // One frame has no direction.
    return [self startForwardAnalysis:location error:error];
}

@end

@interface simulator_api_manager : simulator_interface <PROAPIAccessing>
{
    NSDictionary* interfaces; // the protocol's name is the key
}
@end

@implementation simulator_api_manager

- (instancetype)initWithCore:(ov1::simulated_host::core*)owner
{
    if (!(self = [super initWithCore:owner]))
        return nil;
    NSMutableDictionary* const all = [NSMutableDictionary dictionary];
    const auto offer = [&](NSString* protocol, Class kind)
    { [all setObject:[[[kind alloc] initWithCore:owner] autorelease] forKey:protocol]; };
    offer(@"FxParameterCreationAPI_v5", [simulator_parameter_creation class]);
    offer(@"FxParameterRetrievalAPI_v6", [simulator_parameter_retrieval class]);
    // Version 6 extends version 5, so one class answers to both names.
    offer(@"FxParameterSettingAPI_v5", [simulator_parameter_setting class]);
    offer(@"FxParameterSettingAPI_v6", [simulator_parameter_setting class]);
    offer(@"FxCustomParameterActionAPI_v4", [simulator_actions class]);
    offer(@"FxTimingAPI_v4", [simulator_timing class]);
    offer(@"FxAnalysisAPI", [simulator_analysis class]);
    interfaces = [all copy];
    return self;
}

- (void)dealloc
{
    [interfaces release];
    [super dealloc];
}

- (id)apiForProtocol:(Protocol*)apiProtocol
{
    NSString* const name = NSStringFromProtocol(apiProtocol);
    // Looked up by name, not by the protocol object: gcc's runtime has one such object per object file.
    return core->is_refused(name) ? nil : [interfaces objectForKey:name];
}

@end

id ov1::make_api_manager(simulated_host::core& core) { return [[simulator_api_manager alloc] initWithCore:&core]; }

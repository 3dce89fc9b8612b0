// The protocols that the host implements; a plug-in calls them.
#pragma once

#include <CoreMedia/CMTime.h>
#import <Foundation/Foundation.h>
#import <FxPlug/FxEffectProtocols.h>
#import <FxPlug/FxTypes.h>

@protocol FxParameterCreationAPI_v5
- (BOOL)addFloatSliderWithName:(NSString*)name
                   parameterID:(UInt32)parameterID
                  defaultValue:(double)defaultValue
                  parameterMin:(double)min
                  parameterMax:(double)max
                     sliderMin:(double)sliderMin
                     sliderMax:(double)sliderMax
                         delta:(double)sliderDelta
                parameterFlags:(FxParameterFlags)flags;
- (BOOL)addIntSliderWithName:(NSString*)name
                 parameterID:(UInt32)parameterID
                defaultValue:(int)defaultValue
                parameterMin:(int)min
                parameterMax:(int)max
                   sliderMin:(int)sliderMin
                   sliderMax:(int)sliderMax
                       delta:(int)sliderDelta
              parameterFlags:(FxParameterFlags)flags;
- (BOOL)addToggleButtonWithName:(NSString*)name
                    parameterID:(UInt32)parameterID
                   defaultValue:(BOOL)defaultValue
                 parameterFlags:(FxParameterFlags)flags;
- (BOOL)addPopupMenuWithName:(NSString*)name
                 parameterID:(UInt32)parameterID
                defaultValue:(UInt32)defaultValue
                 menuEntries:(NSArray*)entries
              parameterFlags:(FxParameterFlags)flags;
- (BOOL)addColorParameterWithName:(NSString*)name
                      parameterID:(UInt32)parameterID
                       defaultRed:(double)red
                     defaultGreen:(double)green
                      defaultBlue:(double)blue
                     defaultAlpha:(double)alpha
                   parameterFlags:(FxParameterFlags)flags;
- (BOOL)addCustomParameterWithName:(NSString*)name
                       parameterID:(UInt32)parameterID
                      defaultValue:(NSObject<NSSecureCoding, NSCopying>*)defaultValue
                    parameterFlags:(FxParameterFlags)flags;
@end

@protocol FxParameterRetrievalAPI_v6 <NSObject>
- (BOOL)getFloatValue:(double*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)getIntValue:(int*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)getBoolValue:(BOOL*)value fromParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)getRedValue:(double*)red
         greenValue:(double*)green
          blueValue:(double*)blue
         alphaValue:(double*)alpha
      fromParameter:(UInt32)parameterID
             atTime:(CMTime)time;
- (BOOL)getCustomParameterValue:(NSObject<NSSecureCoding, NSCopying>**)value
                  fromParameter:(UInt32)parameterID
                         atTime:(CMTime)time;
- (BOOL)getParameterFlags:(FxParameterFlags*)flags fromParameter:(UInt32)parameterID;
@end

@protocol FxParameterSettingAPI_v5 <NSObject>
- (BOOL)setFloatValue:(double)value toParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)setIntValue:(int)value toParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)setBoolValue:(BOOL)value toParameter:(UInt32)parameterID atTime:(CMTime)time;
- (BOOL)setRedValue:(double)red
         greenValue:(double)green
          blueValue:(double)blue
         alphaValue:(double)alpha
        toParameter:(UInt32)parameterID
             atTime:(CMTime)time;
- (BOOL)setCustomParameterValue:(NSObject<NSSecureCoding, NSCopying>*)value
                    toParameter:(UInt32)parameterID
                         atTime:(CMTime)time;
- (BOOL)setParameterFlags:(FxParameterFlags)flags toParameter:(UInt32)parameterID;
@end

@protocol FxParameterSettingAPI_v6 <FxParameterSettingAPI_v5>
- (BOOL)addFlags:(FxParameterFlags)flags toParameter:(UInt32)parameterID;
- (BOOL)removeFlags:(FxParameterFlags)flags fromParameter:(UInt32)parameterID;
@end

/// Brackets parameter access from code that the host did not call: a button, a timer, the plug-in's own window.
@protocol FxCustomParameterActionAPI_v4
- (void)startAction:(id)sender;
- (void)endAction:(id)sender;
- (CMTime)currentTime;
@end

/// The timeline runs at numerator / denominator frames a second.
@protocol FxTimingAPI_v4
- (void)inputTime:(CMTime*)inputTime fromTimelineTime:(CMTime)time;
- (NSUInteger)timelineFpsNumeratorForEffect:(id<FxTileableEffect>)effect;
- (NSUInteger)timelineFpsDenominatorForEffect:(id<FxTileableEffect>)effect;
@end

@protocol FxAnalysisAPI
- (FxAnalysisState)analysisStateForEffect;
- (BOOL)startForwardAnalysis:(FxAnalysisLocation)location error:(NSError**)error;
- (BOOL)startBackwardAnalysis:(FxAnalysisLocation)location error:(NSError**)error;
@end

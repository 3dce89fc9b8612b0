// The protocols that a plug-in implements; the host calls them.
#pragma once

#import <AppKit/AppKit.h>
#include <CoreMedia/CMTime.h>
#import <Foundation/Foundation.h>
#import <FxPlug/FxImageTile.h>
#import <FxPlug/FxTypes.h>

/// Gives the host's interface for a protocol; nil when this host does not have it.
@protocol PROAPIAccessing <NSObject>
- (id)apiForProtocol:(Protocol*)apiProtocol;
@end

@protocol FxTileableEffect <NSObject>
- (instancetype)initWithAPIManager:(id<PROAPIAccessing>)apiManager;
- (BOOL)addParametersWithError:(NSError**)error;
- (BOOL)properties:(NSDictionary**)properties error:(NSError**)error;
- (BOOL)pluginState:(NSData**)pluginState
             atTime:(CMTime)renderTime
            quality:(FxQuality)qualityLevel
              error:(NSError**)error;
- (BOOL)destinationImageRect:(FxRect*)destinationImageRect
                sourceImages:(NSArray*)sourceImages
            destinationImage:(FxImageTile*)destinationImage
                 pluginState:(NSData*)pluginState
                      atTime:(CMTime)renderTime
                       error:(NSError**)outError;
- (BOOL)sourceTileRect:(FxRect*)sourceTileRect
       sourceImageIndex:(NSUInteger)sourceImageIndex
           sourceImages:(NSArray*)sourceImages
    destinationTileRect:(FxRect)destinationTileRect
       destinationImage:(FxImageTile*)destinationImage
            pluginState:(NSData*)pluginState
                 atTime:(CMTime)renderTime
                  error:(NSError**)outError;
- (BOOL)renderDestinationImage:(FxImageTile*)destinationImage
                  sourceImages:(NSArray*)sourceImages
                   pluginState:(NSData*)pluginState
                        atTime:(CMTime)renderTime
                         error:(NSError**)outError;
@optional
- (void)pluginInstanceAddedToDocument;
- (BOOL)parameterChanged:(UInt32)paramID atTime:(CMTime)time error:(NSError**)error;
- (Class)classForCustomParameterID:(UInt32)parameterID;
@end

@protocol FxCustomParameterViewHost_v2
/// The caller owns the view.
- (NSView*)createViewForParameterID:(UInt32)parameterID NS_RETURNS_RETAINED;
@end

@protocol FxCustomParameterInterpolation_v2
- (NSObject<NSSecureCoding, NSCopying>*)interpolateBetween:(NSObject<NSSecureCoding, NSCopying>*)rightValue
                                                withWeight:(float)weight;
- (BOOL)isEqual:(NSObject<NSSecureCoding, NSCopying>*)rightValue;
@end

@protocol FxAnalyzer
- (BOOL)desiredAnalysisTimeRange:(CMTimeRange*)desiredRange
           forInputWithTimeRange:(CMTimeRange)inputTimeRange
                           error:(NSError**)error;
- (BOOL)setupAnalysisForTimeRange:(CMTimeRange)analysisRange frameDuration:(CMTime)frameDuration error:(NSError**)error;
- (BOOL)analyzeFrame:(FxImageTile*)frame atTime:(CMTime)frameTime error:(NSError**)error;
- (BOOL)cleanupAnalysis:(NSError**)error;
@end

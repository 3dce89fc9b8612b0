// A part of an image as the host hands it to the plug-in.
#pragma once

#import <FxPlug/FxTypes.h>
#import <IOSurface/IOSurfaceObjC.h>

@interface FxImageTile : NSObject
{
    FxRect tileBounds;
    FxRect imageBounds;
    IOSurface* surface;
    FxImageOrigin origin;
}
@property(readonly, nonatomic) FxRect tilePixelBounds;
@property(readonly, nonatomic) FxRect imagePixelBounds;
/// Nil where nothing is rendered.
@property(readonly, nonatomic) IOSurface* ioSurface;
@property(readonly, nonatomic) FxImageOrigin imageOrigin;

/// For simulated hosts and tests: only hosts make tiles.
- (instancetype)initWithSurface:(IOSurface*)surface
                     tileBounds:(FxRect)tileBounds
                    imageBounds:(FxRect)imageBounds
                         origin:(FxImageOrigin)origin;
@end

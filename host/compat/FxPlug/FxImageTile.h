// A rectangular part of an image, as the host gives it to the plug-in.
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
/// Nil in calls that do not render.
@property(readonly, nonatomic) IOSurface* ioSurface;
@property(readonly, nonatomic) FxImageOrigin imageOrigin;

/// For the simulator and tests: only hosts make tiles.
- (instancetype)initWithSurface:(IOSurface*)surface
                     tileBounds:(FxRect)tileBounds
                    imageBounds:(FxRect)imageBounds
                         origin:(FxImageOrigin)origin;
@end

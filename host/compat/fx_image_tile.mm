#import <FxPlug/FxPlugSDK.h>

NSString* FxPlugErrorDomain = @"FxPlugErrorDomain";

@implementation FxImageTile

@synthesize tilePixelBounds = tileBounds;
@synthesize imagePixelBounds = imageBounds;
@synthesize ioSurface = surface;
@synthesize imageOrigin = origin;

- (instancetype)initWithSurface:(IOSurface*)pixels
                     tileBounds:(FxRect)ofTile
                    imageBounds:(FxRect)ofImage
                         origin:(FxImageOrigin)from
{
    if ((self = [super init]))
    {
        surface = [pixels retain];
        tileBounds = ofTile;
        imageBounds = ofImage;
        origin = from;
    }
    return self;
}

- (void)dealloc
{
    [surface release];
    [super dealloc];
}

@end

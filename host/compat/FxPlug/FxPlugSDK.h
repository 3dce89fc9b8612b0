// The video host's plug-in interface, for systems without it: only the names, signatures and values that we use.
// Source: developer.apple.com, "Professional Video Applications".
#pragma once

#import <AppKit/AppKit.h>
#include <CoreMedia/CMTime.h>
#import <Foundation/Foundation.h>
#import <IOSurface/IOSurfaceObjC.h>

#import <FxPlug/FxTypes.h>

#import <FxPlug/FxImageTile.h>

#import <FxPlug/FxEffectProtocols.h>
#import <FxPlug/FxHostProtocols.h>
#import <FxPlug/FxPrincipal.h>

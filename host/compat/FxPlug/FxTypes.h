// Plain types and constants of the plug-in interface.
#pragma once

#import <Foundation/Foundation.h>
#include <cstdint>

using UInt32 = std::uint32_t;
using SInt32 = std::int32_t;

typedef struct
{
    SInt32 left;
    SInt32 bottom;
    SInt32 right;
    SInt32 top;
} FxRect;

typedef NSUInteger FxQuality;
enum : FxQuality
{
    kFxQuality_LOW = 0,
    kFxQuality_MEDIUM = 1,
    kFxQuality_HIGH = 2,
};

typedef UInt32 FxParameterFlags;
enum : FxParameterFlags
{
    kFxParameterFlag_DEFAULT = 0,
    kFxParameterFlag_NOT_ANIMATABLE = 1 << 0,
    kFxParameterFlag_HIDDEN = 1 << 1,
    kFxParameterFlag_DISABLED = 1 << 2,
    kFxParameterFlag_COLLAPSED = 1 << 3,
    kFxParameterFlag_DONT_SAVE = 1 << 4,
    kFxParameterFlag_DONT_DISPLAY_IN_DASHBOARD = 1 << 5,
    kFxParameterFlag_CUSTOM_UI = 1 << 6,
    kFxParameterFlag_IGNORE_MINMAX = 1 << 8,
    kFxParameterFlag_CURVE_EDITOR_HIDDEN = 1 << 9,
    kFxParameterFlag_DONT_REMAP_COLORS = 1 << 10,
    kFxParameterFlag_USE_FULL_VIEW_WIDTH = 1 << 11,
};

typedef NSInteger FxError;
enum : FxError
{
    kFxError_Success = 0,
    kFxError_InvalidParameter = 5,
    kFxError_APIUnavailable = 14,
    kFxError_NotYetImplemented = 18,
    kFxError_AnalysisError = 22,
    kFxError_InvalidTiming = 29,
};
extern NSString* FxPlugErrorDomain;

typedef NSUInteger FxImageOrigin;
enum : FxImageOrigin
{
    kFxImageOrigin_BOTTOM_LEFT = 0,
    kFxImageOrigin_TOP_LEFT = 2,
};

typedef NSUInteger FxImageColorInfo;
enum : FxImageColorInfo
{
    kFxImageColorInfo_RGB_LINEAR = 0,
    kFxImageColorInfo_RGB_GAMMA_VIDEO = 2,
};

typedef NSInteger FxAnalysisLocation;
enum : FxAnalysisLocation
{
    kFxAnalysisLocation_GPU = 0,
    kFxAnalysisLocation_CPU = 1,
};

typedef NSUInteger FxAnalysisState;
enum : FxAnalysisState
{
    kFxAnalysisState_NotAnalyzing = 0,
    kFxAnalysisState_AnalysisRequested = 1,
    kFxAnalysisState_AnalysisStarted = 2,
    kFxAnalysisState_AnalysisCompleted = 3,
    kFxAnalysisState_AnalysisInterrupted = 4,
};

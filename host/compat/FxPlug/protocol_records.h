// Makes @protocol(...) usable in a source file.
//
// gcc's Objective-C runtime sets up a protocol's record in an object file only if a class or category of that file
// adopts the protocol. A record that is only named by @protocol(...) has no class and no name, and using it ends the
// program. So a category here adopts all of them. Import it in source files that write @protocol(...), never in
// headers.
#pragma once

#import <FxPlug/FxPlugSDK.h>

#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wprotocol"

@interface protocol_record_holder : NSObject
@end

@interface protocol_record_holder (of_this_file) <
    PROAPIAccessing, FxTileableEffect, FxCustomParameterViewHost_v2, FxCustomParameterInterpolation_v2, FxAnalyzer,
    FxParameterCreationAPI_v5, FxParameterRetrievalAPI_v6, FxParameterSettingAPI_v5, FxParameterSettingAPI_v6,
    FxCustomParameterActionAPI_v4, FxTimingAPI_v4, FxAnalysisAPI>
@end

@implementation protocol_record_holder (of_this_file)
@end

#pragma clang diagnostic pop

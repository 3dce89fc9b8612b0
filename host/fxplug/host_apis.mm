#include "host/fxplug/host_apis.h"

#if !defined(__APPLE__)
#import <FxPlug/protocol_records.h>
#endif

namespace ov1
{

// A message to a nil manager returns nil, so nothing is checked here.
id<FxParameterCreationAPI_v5> creation_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxParameterCreationAPI_v5)];
}

id<FxParameterRetrievalAPI_v6> retrieval_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxParameterRetrievalAPI_v6)];
}

id<FxParameterSettingAPI_v5> setting_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxParameterSettingAPI_v5)];
}

id<FxParameterSettingAPI_v6> flag_setting_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxParameterSettingAPI_v6)];
}

id<FxCustomParameterActionAPI_v4> action_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxCustomParameterActionAPI_v4)];
}

id<FxTimingAPI_v4> timing_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxTimingAPI_v4)];
}

id<FxAnalysisAPI> analysis_api(id<PROAPIAccessing> manager)
{
    return [manager apiForProtocol:@protocol(FxAnalysisAPI)];
}

} // namespace ov1

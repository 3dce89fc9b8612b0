// The video host's own objects, asked for at the moment of use.
#pragma once

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// Each gives nil where the host does not have it, as for a manager that is nil.
id<FxParameterCreationAPI_v5> creation_api(id<PROAPIAccessing> manager);
id<FxParameterRetrievalAPI_v6> retrieval_api(id<PROAPIAccessing> manager);
id<FxParameterSettingAPI_v5> setting_api(id<PROAPIAccessing> manager);
/// Missing in older hosts that have the one before.
id<FxParameterSettingAPI_v6> flag_setting_api(id<PROAPIAccessing> manager);
id<FxCustomParameterActionAPI_v4> action_api(id<PROAPIAccessing> manager);
id<FxTimingAPI_v4> timing_api(id<PROAPIAccessing> manager);
id<FxAnalysisAPI> analysis_api(id<PROAPIAccessing> manager);

} // namespace ov1

// Gets the video host's interfaces from its API manager. Callers get them at the moment of use and never keep them.
#pragma once

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// Each returns nil when the host does not have the interface or the manager is nil.
id<FxParameterCreationAPI_v5> creation_api(id<PROAPIAccessing> manager);
id<FxParameterRetrievalAPI_v6> retrieval_api(id<PROAPIAccessing> manager);
id<FxParameterSettingAPI_v5> setting_api(id<PROAPIAccessing> manager);
/// Missing in older hosts, which have only FxParameterSettingAPI_v5.
id<FxParameterSettingAPI_v6> flag_setting_api(id<PROAPIAccessing> manager);
/// Allows calls outside the host's own ones, and knows the current time.
id<FxCustomParameterActionAPI_v4> action_api(id<PROAPIAccessing> manager);
/// Frame rate, and the input's time for a time of the timeline.
id<FxTimingAPI_v4> timing_api(id<PROAPIAccessing> manager);
/// Requests frames; they arrive at the instance's analyzeFrame:.
id<FxAnalysisAPI> analysis_api(id<PROAPIAccessing> manager);

} // namespace ov1

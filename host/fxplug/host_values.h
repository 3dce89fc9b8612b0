// One parameter declared, read and written through the video host's interfaces.
#pragma once

#include "host/bridge/parameter_map.h"

#import <FxPlug/FxPlugSDK.h>

#include <optional>

namespace ov1
{

/// False when the host refused.
bool declare_at_host(id<FxParameterCreationAPI_v5> api, const host_declaration& parameter);

/// The host's value of the control's kind; nothing when the host refused.
std::optional<host_value> read_host_value(id<FxParameterRetrievalAPI_v6> api, host_control control, int host_id,
                                          CMTime time);

bool write_host_value(id<FxParameterSettingAPI_v5> api, const host_value& value, int host_id, CMTime time);

} // namespace ov1

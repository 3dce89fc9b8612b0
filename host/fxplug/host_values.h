// Declares, reads and writes one parameter through the video host's interfaces.
#pragma once

#include "host/bridge/parameter_map.h"

#import <FxPlug/FxPlugSDK.h>

#include <optional>

namespace ov1
{

/// Creates the parameter's control. False when the host refuses.
bool declare_at_host(id<FxParameterCreationAPI_v5> api, const host_declaration& parameter);

/// The parameter's value at a time, of the control's type; nothing when the host refuses.
std::optional<host_value> read_host_value(id<FxParameterRetrievalAPI_v6> api, host_control control, int host_id,
                                          CMTime time);

/// Sets the parameter's value at a time; the variant's type chooses the host's method. False when the host refuses.
bool write_host_value(id<FxParameterSettingAPI_v5> api, const host_value& value, int host_id, CMTime time);

} // namespace ov1

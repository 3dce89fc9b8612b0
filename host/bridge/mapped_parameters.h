// Which parameters a restored document moved that its state does not name: those that took over a former parameter.
#pragma once

#include "framework/icomponent_v1.h"

#include <span>
#include <vector>

namespace ov1
{

/// The values of all parameters, by place.
std::vector<param_value> copy_values(icomponent_v1& component);

/// Places of parameters that changed since `before` and do not stand as the state's last record of them says. The host
/// holds their own values still and has to be told, or it would put those back.
std::vector<int> mapped_parameters(icomponent_v1& component, std::span<const param_value> before,
                                   std::span<const std::uint8_t> state);

} // namespace ov1

// Finds the parameters that an old document changed without naming them: they replaced a parameter of an older version.
#pragma once

#include "framework/icomponent_v1.h"

#include <span>
#include <vector>

namespace ov1
{

/// The values of all parameters, by index.
std::vector<param_value> copy_values(icomponent_v1& component);

/// Indices of the parameters that changed since `before` and whose value is not the one in the state's last record of
/// them. The video host still has their old values and must get the new ones, or it would set the old ones again.
std::vector<int> mapped_parameters(icomponent_v1& component, std::span<const param_value> before,
                                   std::span<const std::uint8_t> state);

} // namespace ov1

// The visible difference between two colours.
#pragma once

#include "tools/looks/colour_space.h"

namespace ov1
{

/// CIEDE2000 with all weights 1. A difference of about 1 is just noticeable when the colours touch. Sharma, Wu, Dalal,
/// "The CIEDE2000 color-difference formula: implementation notes, supplementary test data, and mathematical
/// observations" (2005).
double delta_e_2000(const cielab& one, const cielab& other);

/// The same for two colours in code values.
double delta_e_2000(const rgb_double& one, const rgb_double& other);

} // namespace ov1

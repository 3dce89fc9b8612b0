// How different two colours look.
#pragma once

#include "tools/looks/colour_space.h"

namespace ov1
{

/// CIEDE2000 with all weights 1. About 1 is just noticeable side by side. Sharma, Wu, Dalal, "The CIEDE2000
/// color-difference formula: implementation notes, supplementary test data, and mathematical observations" (2005).
double delta_e_2000(const cielab& one, const cielab& other);

/// The same for two colours in code values.
double delta_e_2000(const rgb_double& one, const rgb_double& other);

} // namespace ov1

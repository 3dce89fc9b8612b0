// The build of the table written down a second time, in double precision and without regard for speed.
#pragma once

#include "effect/grade_settings.h"

#include <array>
#include <functional>
#include <vector>

namespace ov1::test
{

using rgb = std::array<double, 3>;
using grid = std::vector<rgb>; ///< 4913 colours, red outermost, blue innermost

/// looks: the table of each number of synthetic_looks.h.
grid double_precision_build(const grade_settings& settings, const std::function<grid(std::size_t)>& looks);

} // namespace ov1::test

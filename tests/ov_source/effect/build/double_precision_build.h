// A second, independent build of the table, in double precision.
#pragma once

#include "effect/grade_settings.h"

#include <array>
#include <functional>
#include <vector>

namespace ov1::test
{

using rgb = std::array<double, 3>;
using grid = std::vector<rgb>; ///< 4913 colours, red outermost, blue innermost

/// looks(n) is the table that synthetic_looks.h numbers n.
grid double_precision_build(const grade_settings& settings, const std::function<grid(std::size_t)>& looks);

} // namespace ov1::test

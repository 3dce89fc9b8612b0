// Writes a table as a HaldCLUT picture, which photo software reads.
#pragma once

#include "framework/row_renderer.h"
#include "shared/result.h"

#include <cstdint>
#include <vector>

namespace ov1
{

/// A PNG of 512 x 512 pixels and 16 bits that holds a cube of 64 points per axis, red varying fastest, then green, then
/// blue, as the renderer grades it (level 8). Source: the HaldCLUT layout,
/// http://www.quelsolaar.com/technology/clut.html
/// The renderer is called on this thread, for 1024 pixels at a time. The failure has no subject.
result<std::vector<std::uint8_t>> make_hald_clut(const row_renderer& renderer);

} // namespace ov1

// A table as a picture: a HaldCLUT, which photo software reads.
#pragma once

#include "framework/row_renderer.h"
#include "media/base/error.h"

#include <cstdint>
#include <vector>

namespace ov1
{

/// A PNG of 512 x 512 pixels and 16 bits that holds a cube of 64 points per axis, red varying fastest, then green, then
/// blue, as the renderer grades it (level 8). Source: the HaldCLUT layout,
/// http://www.quelsolaar.com/technology/clut.html
[[nodiscard]] bool make_hald_clut(const row_renderer& renderer, std::vector<std::uint8_t>& bytes, media::error& why);

} // namespace ov1

// The resolution of the editor's pictures.
#pragma once

namespace ov1
{

/// Pixels to a point, across and down, in all of the editor's PNG files.
inline constexpr int artwork_scale = 2;

} // namespace ov1

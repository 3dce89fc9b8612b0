// Pixels of our own in a bitmap of the toolkit.
#pragma once

#include "vstgui/vstgui.h"

#include <cstdint>
#include <span>

namespace ov1
{

/// Overwrites all of a bitmap. Pixels are opaque, in memory blue, green, red, 255; in rows from the top, without
/// padding, as many as the bitmap has. Does nothing where the toolkit gives no access.
void set_pixels(VSTGUI::CBitmap& bitmap, std::span<const std::uint32_t> pixels);

} // namespace ov1

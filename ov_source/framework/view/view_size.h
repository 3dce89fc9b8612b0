// How large an editor is on a screen.
#pragma once

#include "shared/rect.h"

namespace ov1
{

/// The smallest window that the editor's parts fit into, in unscaled pixels.
inline constexpr int least_view_width = 1024;
inline constexpr int least_view_height = 528;

/// Width and height in unscaled pixels for a screen of that size: nine tenths of its width, at least 1024; below 1280
/// the height is 528, above it follows the width in the proportion 988 : 528, up to nine tenths of the screen's.
rect view_size_for_screen(int screen_width, int screen_height);

} // namespace ov1

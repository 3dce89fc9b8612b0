// The size of an editor on a screen.
#pragma once

#include "shared/rect.h"

namespace ov1
{

/// The smallest size that fits the parts of the editor, in unscaled pixels.
inline constexpr int least_view_width = 1024;
inline constexpr int least_view_height = 528;

/// Width and height for a screen, all in unscaled pixels. The width is nine tenths of the screen's, at least 1024. The
/// height is 528 below a width of 1280, else width * 528 / 988, at most nine tenths of the screen's height.
rect view_size_for_screen(int screen_width, int screen_height);

} // namespace ov1

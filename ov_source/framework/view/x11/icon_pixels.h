// A picture from the resources in the format of window icons.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// Width, height, then the pixels by rows from the top, each 0xAARRGGBB with straight alpha (EWMH, _NET_WM_ICON).
/// Empty if the resources have no such picture. name has no ".png".
std::vector<std::uint32_t> read_icon_pixels(const std::string& name);

} // namespace ov1

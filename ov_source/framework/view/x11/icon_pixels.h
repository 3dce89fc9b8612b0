// A picture of the resources as window managers want their icons.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// Width, height, then the pixels by rows from the top, each 0xAARRGGBB with straight alpha (EWMH, _NET_WM_ICON).
/// Empty when the resources hold no such picture. name is without ".png".
std::vector<std::uint32_t> read_icon_pixels(const std::string& name);

} // namespace ov1

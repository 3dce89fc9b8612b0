#include "framework/view/view_size.h"

#include <algorithm>

namespace ov1
{

rect view_size_for_screen(int screen_width, int screen_height)
{
    // The share leaves room for the desktop's panels and the title bar.
    constexpr double share_of_screen = 0.9;
    constexpr int least_proportional_width = 1280;
    constexpr double height_to_width = 528.0 / 988.0;

    const int width = static_cast<int>(std::max<double>(least_view_width, share_of_screen * screen_width));
    if (width < least_proportional_width)
        return {0, 0, width, least_view_height};
    const double height = std::min(width * height_to_width, share_of_screen * screen_height);
    return {0, 0, width, static_cast<int>(height)};
}

} // namespace ov1

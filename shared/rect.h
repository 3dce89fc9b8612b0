// A rectangle in whole pixels.
#pragma once

namespace ov1
{

/// Position of the upper left corner and size, in unscaled screen pixels.
struct rect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const rect&) const = default;
};

} // namespace ov1

#include "media/stills/still_info.h"

#include <array>

namespace ov1::media
{

namespace
{

/// By depth; --depth takes these words.
constexpr std::array<std::string_view, 6> depth_names{"8", "10", "12", "16", "half", "float"};

} // namespace

std::string_view name_of(depth d) { return depth_names[static_cast<std::size_t>(d)]; }

std::optional<depth> depth_named(std::string_view name)
{
    for (std::size_t i = 0; i < depth_names.size(); ++i)
        if (depth_names[i] == name)
            return static_cast<depth>(i);
    return std::nullopt;
}

turn turn_of(unsigned orientation)
{
    switch (orientation)
    {
    case 2:
        return {.flip_x = true};
    case 3:
        return {.flip_x = true, .flip_y = true};
    case 4:
        return {.flip_y = true};
    case 5:
        return {.swap_axes = true};
    case 6:
        return {.swap_axes = true, .flip_x = true};
    case 7:
        return {.swap_axes = true, .flip_x = true, .flip_y = true};
    case 8:
        return {.swap_axes = true, .flip_y = true};
    default:
        return {};
    }
}

} // namespace ov1::media

// Reduces a frame of the host to the preview image of the editor.
#pragma once

#include "host/bridge/pixel_loops.h"
#include "shared/image.h"

#include <cstdint>

namespace ov1
{

/// Upper limit of a preview's longer side, in pixels.
inline constexpr std::uint32_t longest_preview_side = 1600;

/// Size of a preview, and its scale against the frame.
struct preview_size
{
    std::uint32_t width = 0; ///< in pixels
    std::uint32_t height = 0;
    float step_x = 1.0f; ///< frame pixels per preview pixel, at least 1
    float step_y = 1.0f;
};

/// The preview's size for a frame that is not empty. The longer side is at most 1600, both sides are at least 1.
/// Computed in single precision, which decides about the last pixel of a side: 3840 x 2160 gives 1600 x 900.
preview_size preview_size_of(std::uint32_t width, std::uint32_t height);

/// A frame in the host's memory. The caller keeps the surface locked.
struct host_frame
{
    const std::byte* pixels = nullptr; ///< the first row in memory
    surface_layout layout;
    tile_format format = tile_format::rgba_half;
};

/// Fills row y of the preview with box averages of the frame, in the order a, r, g, b. Each mean is limited to 0..1; a
/// NaN gives 0. Several threads may fill different rows of the same preview.
void fill_preview_row(const host_frame& frame, const preview_size& size, image& preview, std::uint32_t y);

} // namespace ov1

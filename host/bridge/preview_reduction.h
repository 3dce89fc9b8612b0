// The editor's still of the host's frame: its size, and how its pixels follow from the frame's.
#pragma once

#include "host/bridge/pixel_loops.h"
#include "shared/image.h"

#include <cstdint>

namespace ov1
{

/// The longer side of a preview, at most.
inline constexpr std::uint32_t longest_preview_side = 1600;

struct preview_size
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    float step_x = 1.0f; ///< pixels of the frame to one of the preview, at least 1
    float step_y = 1.0f;
};

/// The preview of a frame that is not empty: as large as the frame, or with its longer side cut to 1600, and at least 1
/// pixel either way. In single precision, on which the last pixel of a side depends: 3840 x 2160 gives 1600 x 900.
preview_size preview_size_of(std::uint32_t width, std::uint32_t height);

/// A frame in the host's memory, of a format that is read.
struct host_frame
{
    const std::byte* pixels = nullptr;
    surface_layout layout;
    tile_format format = tile_format::rgba_half;
};

/// Fills row y of the preview: each pixel is the mean of those of the frame that it stands for, in the order a, r, g,
/// b, then limited to 0..1; a NaN gives 0. Several threads may fill rows of one preview.
void fill_preview_row(const host_frame& frame, const preview_size& size, image& preview, std::uint32_t y);

} // namespace ov1

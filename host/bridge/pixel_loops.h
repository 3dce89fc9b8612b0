// The two pixel loops over a tile's rows, and the pixel formats that they accept.
#pragma once

#include "framework/row_renderer.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace ov1
{

/// Size, format and memory layout of a surface, as the host reports them.
struct surface_layout
{
    std::size_t bytes_per_row = 0;     ///< padding included
    std::size_t bytes_per_element = 0; ///< of one pixel
    std::size_t width = 0;
    std::size_t height = 0;
    std::uint32_t pixel_format = 0; ///< four characters, the first in the highest byte

    bool operator==(const surface_layout&) const = default;
};

inline constexpr std::uint32_t rgba_half_code = 0x52476841;  // "RGhA"
inline constexpr std::uint32_t rgba_float_code = 0x52476641; // "RGfA"

/// The accepted pixel formats. The host calls both R G B A.
enum class tile_format
{
    rgba_half,  ///< four half floats a pixel, R G B A
    rgba_float, ///< four 32-bit floats a pixel, R G B A
};

/// The format of a surface; nothing when it is not accepted. The code and the bytes per element must match.
std::optional<tile_format> tile_format_of(const surface_layout& layout);

/// The memory of a source and a destination of the same size and format. Row 0 is the first in memory. Every row begins
/// at a multiple of a channel's size. The host owns the memory and keeps it locked.
struct tile_pair
{
    const std::byte* source = nullptr;
    std::byte* destination = nullptr;
    std::size_t source_bytes_per_row = 0; ///< padding included
    std::size_t destination_bytes_per_row = 0;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// Renders row y of halfs, in the order R, G, B, A. The input is limited to 0..1, a NaN becomes 0; the result is
/// rounded to the nearest half and not limited. Allocates nothing itself.
void render_half_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y);

/// Renders row y of floats. The input is limited as above. The four numbers of a pixel are taken as a, r, g, b in
/// memory order, without reordering. So the channels of a tile in R G B A order are shifted by one; this is meant,
/// because existing documents rely on it. Preview images are in the order a, r, g, b and come out right.
void render_float_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y);

} // namespace ov1

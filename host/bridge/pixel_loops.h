// The two loops over the pixels of a tile, and what a tile must be for them.
#pragma once

#include "framework/row_renderer.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace ov1
{

/// What the host says of a surface.
struct surface_layout
{
    std::size_t bytes_per_row = 0;
    std::size_t bytes_per_element = 0;
    std::size_t width = 0;
    std::size_t height = 0;
    std::uint32_t pixel_format = 0; ///< four characters, the first in the highest byte

    bool operator==(const surface_layout&) const = default;
};

inline constexpr std::uint32_t rgba_half_code = 0x52476841;  // "RGhA"
inline constexpr std::uint32_t rgba_float_code = 0x52476641; // "RGfA"

enum class tile_format
{
    rgba_half,  ///< four half floats a pixel, R G B A
    rgba_float, ///< four 32-bit floats a pixel, R G B A
};

/// The format of a surface; nothing unless the code and the bytes per element belong together.
std::optional<tile_format> tile_format_of(const surface_layout& layout);

/// A source and a destination of one shape. Row 0 is the first in memory. Rows begin at multiples of a channel's size.
struct tile_pair
{
    const std::byte* source = nullptr;
    std::byte* destination = nullptr;
    std::size_t source_bytes_per_row = 0;
    std::size_t destination_bytes_per_row = 0;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// One row of halfs: R, G, B, A are limited to 0..1, a NaN being 0, rendered and rounded to the nearest half, the
/// result not limited. Allocates nothing of its own.
void render_half_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y);

/// One row of floats: the four numbers of a pixel are limited to 0..1 likewise and go through as a, r, g, b in the
/// order in which they lie in memory. Tiles in R G B A order are so rendered with their channels one place on, as the
/// host's documents have always known it; preview images, which hold a, r, g, b, are rendered as they should be.
void render_float_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y);

} // namespace ov1

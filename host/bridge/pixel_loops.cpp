#include "host/bridge/pixel_loops.h"

#include "shared/clamp.h"

#include <algorithm>

namespace ov1
{

namespace
{

// Four channels.
constexpr std::size_t half_pixel_bytes = 4 * sizeof(half_bits);
constexpr std::size_t float_pixel_bytes = 4 * sizeof(float);

// The distance between rows is in bytes: rows may be padded.
template <typename T>
const T* source_row(const tile_pair& tile, std::size_t y)
{
    return reinterpret_cast<const T*>(tile.source + y * tile.source_bytes_per_row);
}

template <typename T>
T* destination_row(const tile_pair& tile, std::size_t y)
{
    return reinterpret_cast<T*>(tile.destination + y * tile.destination_bytes_per_row);
}

} // namespace

std::optional<tile_format> tile_format_of(const surface_layout& layout)
{
    // The size is checked too: with pixels of another size the loops would read and write past the rows.
    if (layout.pixel_format == rgba_half_code && layout.bytes_per_element == half_pixel_bytes)
        return tile_format::rgba_half;
    if (layout.pixel_format == rgba_float_code && layout.bytes_per_element == float_pixel_bytes)
        return tile_format::rgba_float;
    return std::nullopt;
}

void render_half_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y)
{
    // One call limits, reorders, grades and rounds.
    renderer.render_row_half(y, source_row<half_bits>(tile, y), destination_row<half_bits>(tile, y), tile.width);
}

void render_float_row(const row_renderer& renderer, const tile_pair& tile, std::size_t y)
{
    auto* const out = destination_row<argb_float>(tile, y);
    // The destination row holds the clamped input, which is then rendered in place: no extra row is needed.
    std::transform(source_row<argb_float>(tile, y), source_row<argb_float>(tile, y) + tile.width, out,
                   [](const argb_float& p) { return clamped(p); });
    renderer.render_row(y, out, out, tile.width);
}

} // namespace ov1

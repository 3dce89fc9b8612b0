#include "host/bridge/preview_reduction.h"

#include "shared/clamp.h"
#include "shared/half_float.h"

#include <algorithm>
#include <cstring>

namespace ov1
{

namespace
{

/// The frame's columns or rows, first to end - 1, that one column or row of the preview averages.
struct span
{
    std::size_t first;
    std::size_t end;
};

span span_of(std::uint32_t i, float step, std::size_t limit)
{
    // Truncated in single precision, as existing previews were: neighbouring spans share no pixel and leave none out.
    const auto at = [&](std::uint32_t k)
    { return std::min(static_cast<std::size_t>(step * static_cast<float>(k)), limit); };
    return {at(i), at(i + 1)};
}

argb_float pixel_at(const host_frame& frame, const std::byte* row, std::size_t x)
{
    // Copied bytewise: nothing guarantees that a frame's rows are aligned for floats.
    const std::byte* const at = row + x * frame.layout.bytes_per_element;
    float rgba[4];
    if (frame.format == tile_format::rgba_half)
    {
        half_bits halfs[4];
        std::memcpy(halfs, at, sizeof halfs);
        std::transform(halfs, halfs + 4, rgba, half_to_float);
    }
    else
        std::memcpy(rgba, at, sizeof rgba);
    return {rgba[3], rgba[0], rgba[1], rgba[2]};
}

/// The sum of each channel over a box. A box has few pixels, so single precision is enough.
argb_float sum_of(const host_frame& frame, span rows, span columns)
{
    argb_float sum;
    for (std::size_t y = rows.first; y < rows.end; ++y)
    {
        const std::byte* const row = frame.pixels + y * frame.layout.bytes_per_row;
        for (std::size_t x = columns.first; x < columns.end; ++x)
        {
            const argb_float p = pixel_at(frame, row, x);
            sum = {sum.a + p.a, sum.r + p.r, sum.g + p.g, sum.b + p.b};
        }
    }
    return sum;
}

/// Limited after the division, not pixel by pixel: a highlight above 1 brightens its whole box.
float mean(float sum, std::size_t count) { return clamped(sum / static_cast<float>(count)); }

} // namespace

preview_size preview_size_of(std::uint32_t width, std::uint32_t height)
{
    const auto w = static_cast<float>(width), h = static_cast<float>(height);
    // First this quotient, then the shorter side from it: another order rounds differently and can lose a pixel.
    const float aspect = w / h;
    preview_size size;
    if (width > height)
    {
        size.width = std::min(width, longest_preview_side);
        size.height = static_cast<std::uint32_t>(static_cast<float>(size.width) / aspect);
    }
    else
    {
        size.height = std::min(height, longest_preview_side);
        size.width = static_cast<std::uint32_t>(aspect * static_cast<float>(size.height));
    }
    // A side of 9000 x 1 pixels would be truncated to 0.
    size.width = std::max(size.width, 1u);
    size.height = std::max(size.height, 1u);
    // From the truncated sizes, so that the boxes reach the frame's last row and column.
    size.step_x = std::max(w / static_cast<float>(size.width), 1.0f);
    size.step_y = std::max(h / static_cast<float>(size.height), 1.0f);
    return size;
}

void fill_preview_row(const host_frame& frame, const preview_size& size, image& preview, std::uint32_t y)
{
    auto* const out = reinterpret_cast<argb_float*>(preview.row(y));
    const span rows = span_of(y, size.step_y, frame.layout.height);
    for (std::uint32_t x = 0; x < size.width; ++x)
    {
        const span columns = span_of(x, size.step_x, frame.layout.width);
        const argb_float sum = sum_of(frame, rows, columns);
        const std::size_t count = (rows.end - rows.first) * (columns.end - columns.first);
        if (count > 0) // else the pixel stays zero
            out[x] = {mean(sum.a, count), mean(sum.r, count), mean(sum.g, count), mean(sum.b, count)};
    }
}

} // namespace ov1

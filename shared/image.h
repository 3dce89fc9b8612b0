// A frame for the editor's preview.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace ov1
{

/// Size, pixel type, origin and pixels. Owns the pixels; shared through a shared pointer. Not synchronised: the writer
/// makes sure that nobody reads meanwhile.
class image
{
public:
    enum class pixel_type : std::uint32_t
    {
        /// Four 32-bit floats per pixel in the order a, r, g, b: rows of argb_float, nominally 0..1.
        argb_f32 = 3,
    };
    enum class origin : std::uint32_t
    {
        top_left = 0,    ///< row 0 is the top row
        bottom_left = 1, ///< row 0 is the bottom row
    };

    /// Width and height in pixels. Rows have no padding; all bytes are zero.
    image(std::uint32_t width, std::uint32_t height, pixel_type type, origin from);

    /// The first byte of row 0, valid as long as the image.
    std::byte* pixels() { return data.get(); }
    const std::byte* pixels() const { return data.get(); }
    std::uint32_t get_width() const { return width; }
    std::uint32_t get_height() const { return height; }
    /// 16 times the width.
    std::uint32_t get_bytes_per_row() const { return bytes_per_row; }
    pixel_type get_pixel_type() const { return type; }
    origin get_origin() const { return first_row; }

    /// Start of a row; row 0 is the first in memory, and y must be below the height.
    std::byte* row(std::uint32_t y) { return data.get() + std::size_t{y} * bytes_per_row; }
    const std::byte* row(std::uint32_t y) const { return data.get() + std::size_t{y} * bytes_per_row; }

private:
    std::unique_ptr<std::byte[]> data;
    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t bytes_per_row;
    pixel_type type;
    origin first_row;
};

} // namespace ov1

#include "host/simulator/tile_maker.h"

#include "shared/half_float.h"

#include <cstring>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

constexpr picture_part part{1, 2, 3, 2};

/// Every channel of every pixel differs from its neighbours, and halfs hold it exactly.
rgba_picture make_picture()
{
    rgba_picture picture(5, 6);
    for (std::size_t i = 0; i < picture.rgba.size(); ++i)
        picture.rgba[i] = static_cast<float>(i + 1) / 256;
    return picture;
}

const std::byte* row_of(IOSurface* surface, std::size_t y)
{
    return static_cast<const std::byte*>([surface pixels]) + y * [surface shape].bytes_per_row;
}

TEST(tile_maker, a_surface_holds_the_parts_pixels_with_padding_after_each_row_and_goes_back_into_its_part)
{
    const rgba_picture picture = make_picture();
    const struct
    {
        surface_format format;
        OSType code;
        std::size_t pixel_bytes, padding;
    } rows[] = {{surface_format::half, 0x52476841, 8, 0},
                {surface_format::half, 0x52476841, 8, 24},
                {surface_format::full_float, 0x52476641, 16, 0},
                {surface_format::full_float, 0x52476641, 16, 32}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(testing::Message() << row.pixel_bytes << ", padding " << row.padding);
        IOSurface* const surface = make_surface(picture, part, row.format, row.padding);
        const surface_shape shape = [surface shape];
        EXPECT_EQ(shape.width, 3u);
        EXPECT_EQ(shape.height, 2u);
        EXPECT_EQ(shape.pixel_format, row.code);
        EXPECT_EQ(shape.bytes_per_element, row.pixel_bytes);
        EXPECT_EQ(shape.bytes_per_row, 3 * row.pixel_bytes + row.padding);
        // Blue of the last pixel in the second row.
        const std::byte* const at = row_of(surface, 1) + 2 * row.pixel_bytes + row.pixel_bytes / 2;
        half_bits half = 0;
        float blue = 0.0f;
        std::memcpy(&half, at, sizeof half);
        std::memcpy(&blue, at, sizeof blue);
        EXPECT_EQ(row.format == surface_format::half ? half_to_float(half) : blue, picture.pixel(3, 3)[2]);
        for (std::size_t i = 3 * row.pixel_bytes; i < shape.bytes_per_row; ++i)
            EXPECT_EQ(static_cast<const std::byte*>([surface pixels])[i], std::byte{0});
        rgba_picture out(5, 6);
        take_surface(surface, row.format, out, part);
        for (std::size_t y = 0; y < 6; ++y)
            for (std::size_t x = 0; x < 5; ++x)
                for (std::size_t c = 0; c < 4; ++c)
                {
                    const bool inside = x >= 1 && x < 4 && y >= 2 && y < 4;
                    EXPECT_EQ(out.pixel(x, y)[c], inside ? picture.pixel(x, y)[c] : 0.0f) << x << ' ' << y << ' ' << c;
                }
        [surface release];
    }
}

TEST(tile_maker, rectangles_count_from_the_lower_edge_and_pixels_from_the_top)
{
    IOSurface* const surface = make_empty_surface(part, surface_format::half, 0);
    FxImageTile* const tile = make_tile(surface, rgba_picture(5, 7), part);
    const FxRect at = [tile tilePixelBounds], image = [tile imagePixelBounds];
    EXPECT_TRUE(at.left == 1 && at.bottom == 3 && at.right == 4 && at.top == 5);
    EXPECT_TRUE(image.left == 0 && image.bottom == 0 && image.right == 5 && image.top == 7);
    EXPECT_EQ([tile imageOrigin], kFxImageOrigin_TOP_LEFT);
    EXPECT_EQ([tile ioSurface], surface);
    [tile release];
    [surface release];
}

} // namespace
} // namespace ov1

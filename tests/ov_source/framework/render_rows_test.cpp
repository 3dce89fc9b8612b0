#include "framework/image_render.h"
#include "framework/render_rows.h"
#include "framework/row_renderer.h"
#include "shared/image.h"

#include <gtest/gtest.h>
#include <vector>

namespace ov1
{
namespace
{

/// Adds the row to red and the column to green.
struct place_renderer : row_renderer
{
    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        for (std::size_t x = 0; x < count; ++x)
            out[x] = {in[x].a, in[x].r + static_cast<float>(y), in[x].g + static_cast<float>(x), in[x].b};
    }
};

TEST(render_rows, renders_the_pixels_of_each_row_and_nothing_between_rows)
{
    constexpr std::size_t width = 3, height = 20, in_step = 5, out_step = 4; // more rows than one piece
    const std::vector<argb_float> in(in_step * height, {1, 0, 0, 0.5f});
    const argb_float untouched{7, 7, 7, 7};
    std::vector<argb_float> out(out_step * height, untouched);
    render_rows(place_renderer(),
                picture_rows<argb_float>{.in = in.data(),
                                         .out = out.data(),
                                         .in_step = in_step,
                                         .out_step = out_step,
                                         .width = width,
                                         .height = height},
                0);
    for (std::size_t y = 0; y < height; ++y)
        for (std::size_t x = 0; x < out_step; ++x)
            EXPECT_EQ(out[y * out_step + x],
                      x < width ? (argb_float{1, static_cast<float>(y), static_cast<float>(x), 0.5f}) : untouched)
                << x << ", " << y;
}

TEST(render_rows, half_pixels_have_four_elements)
{
    const half_bits half = float_to_half(0.5f);
    std::vector<half_bits> pixels(2 * 2 * 4, half); // in place
    render_rows(place_renderer(),
                picture_rows<half_bits>{
                    .in = pixels.data(), .out = pixels.data(), .in_step = 8, .out_step = 8, .width = 2, .height = 2},
                1);
    EXPECT_EQ(half_to_float(pixels[12]), 1.5f) << "red of the pixel at 1, 1";
    EXPECT_EQ(half_to_float(pixels[13]), 1.5f) << "its green";
    EXPECT_EQ(half_to_float(pixels[8]), 1.5f) << "red of the pixel at 0, 1";
    EXPECT_EQ(half_to_float(pixels[9]), 0.5f) << "its green";
}

TEST(render_image, row_0_is_the_top_row_in_both_origins)
{
    for (const auto origin : {image::origin::top_left, image::origin::bottom_left})
    {
        SCOPED_TRACE(static_cast<int>(origin));
        const image source(2, 3, image::pixel_type::argb_f32, origin);
        image destination(2, 3, image::pixel_type::argb_f32, origin);
        ASSERT_TRUE(render_image(place_renderer(), source, destination));
        const auto* const first_in_memory = reinterpret_cast<const argb_float*>(destination.row(0));
        EXPECT_EQ(first_in_memory[1].r, origin == image::origin::top_left ? 0.0f : 2.0f);
        EXPECT_EQ(first_in_memory[1].g, 1.0f);
    }
}

} // namespace
} // namespace ov1

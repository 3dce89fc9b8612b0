#include "host/bridge/pixel_loops.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace ov1
{
namespace
{

/// Records its input and returns values outside 0..1.
struct recording_rows : row_renderer
{
    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        for (std::size_t x = 0; x < count; ++x)
        {
            seen.push_back(in[x]);
            out[x] = {in[x].a + 1, in[x].r + static_cast<float>(y), in[x].g, -in[x].b};
        }
    }
    mutable std::vector<argb_float> seen;
};

TEST(pixel_loops, halfs_are_limited_and_reordered_to_argb_and_the_result_is_not_limited)
{
    const half_bits quiet_nan = 0x7e00;
    // Rows of two pixels and padding; the second row is rendered.
    std::vector<half_bits> in(2 * 12), out(2 * 12, 0x1234);
    const half_bits pixels[] = {float_to_half(1.5f), float_to_half(-0.2f), float_to_half(0.5f),
                                float_to_half(2.0f), float_to_half(0.25f), quiet_nan,
                                float_to_half(1.0f), float_to_half(0.0f)};
    std::copy(std::begin(pixels), std::end(pixels), in.begin() + 12);
    const recording_rows renderer;
    render_half_row(
        renderer, {reinterpret_cast<std::byte*>(in.data()), reinterpret_cast<std::byte*>(out.data()), 24, 24, 2, 2}, 1);
    ASSERT_EQ(renderer.seen.size(), 2u);
    EXPECT_EQ(renderer.seen[0], (argb_float{1, 1, 0, 0.5f}));
    EXPECT_EQ(renderer.seen[1], (argb_float{0, 0.25f, 0, 1}));
    EXPECT_EQ(half_to_float(out[12]), 2.0f) << "red, with the row's number added";
    EXPECT_EQ(half_to_float(out[14]), -0.5f) << "blue";
    EXPECT_EQ(half_to_float(out[15]), 2.0f) << "alpha";
    EXPECT_EQ(out[11], 0x1234) << "the row before is unchanged";
    EXPECT_EQ(out[20], 0x1234) << "the padding is unchanged";
}

TEST(pixel_loops, floats_are_taken_as_argb_in_memory_order)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float in[] = {1.5f, -0.2f, 0.5f, nan};
    float out[4] = {};
    const recording_rows renderer;
    render_float_row(renderer,
                     {reinterpret_cast<const std::byte*>(in), reinterpret_cast<std::byte*>(out), 16, 16, 1, 1}, 0);
    EXPECT_EQ(renderer.seen.at(0), (argb_float{1, 0, 0.5f, 0}));
    EXPECT_EQ(out[0], 2.0f) << "the renderer takes it as alpha";
}

} // namespace
} // namespace ov1

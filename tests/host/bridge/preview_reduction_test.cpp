#include "host/bridge/preview_reduction.h"

#include "shared/argb_float.h"
#include "shared/half_float.h"

#include <gtest/gtest.h>
#include <vector>

namespace ov1
{
namespace
{

TEST(preview_size, the_longer_side_is_at_most_1600)
{
    const struct
    {
        std::uint32_t w, h, preview_w, preview_h;
    } rows[] = {{3840, 2160, 1600, 900}, {1080, 1920, 900, 1600}, {640, 480, 640, 480}, {1601, 1601, 1600, 1600},
                {1, 9000, 1, 1600},      {9000, 1, 1600, 1},      {1, 1, 1, 1}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::to_string(row.w) + " x " + std::to_string(row.h));
        const preview_size size = preview_size_of(row.w, row.h);
        EXPECT_EQ(size.width, row.preview_w);
        EXPECT_EQ(size.height, row.preview_h);
        EXPECT_GE(size.step_x, 1.0f);
        EXPECT_GE(size.step_y, 1.0f);
    }
    EXPECT_EQ(preview_size_of(640, 480).step_x, 1.0f);
    EXPECT_EQ(preview_size_of(3840, 2160).step_y, 2.4f);
}

TEST(preview, pixels_are_limited_means_in_argb_order)
{
    // Three columns become two: the first stands for column 0, the second for columns 1 and 2.
    const preview_size size{2, 1, 1.5f, 1.0f};
    const float pixels[] = {0.25f, 0.5f, 0.75f, 1, 0, 0.25f, 3, 1, 1, 0.75f, 3, 0};
    std::vector<half_bits> halfs;
    for (const float v : pixels)
        halfs.push_back(float_to_half(v));
    const host_frame frames[] = {
        {reinterpret_cast<const std::byte*>(pixels), {48, 16, 3, 1, rgba_float_code}, tile_format::rgba_float},
        {reinterpret_cast<const std::byte*>(halfs.data()), {24, 8, 3, 1, rgba_half_code}, tile_format::rgba_half}};
    for (const host_frame& frame : frames)
    {
        image preview(2, 1, image::pixel_type::argb_f32, image::origin::top_left);
        fill_preview_row(frame, size, preview, 0);
        const auto* out = reinterpret_cast<const argb_float*>(preview.row(0));
        EXPECT_EQ(out[0], (argb_float{1, 0.25f, 0.5f, 0.75f}));
        EXPECT_EQ(out[1], (argb_float{0.5f, 0.5f, 0.5f, 1})) << "limited after the mean";
    }
}

} // namespace
} // namespace ov1

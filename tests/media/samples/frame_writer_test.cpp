#include "media/samples/frame_writer.h"

#include "media/samples/frames.h"

#include <limits>

namespace ov1::media
{
namespace
{

std::array<int, 4> written(AVPixelFormat pixels, const argb_float& colour)
{
    const frame_ptr frame = new_frame(pixels, 1, 1);
    const frame_form shape = form(pixels, {AVCOL_RANGE_JPEG, AVCOL_SPC_BT470BG, AVCHROMA_LOC_CENTER});
    frame_writer(*frame, shape).write(0, 1, &colour);
    std::array<int, 4> codes{};
    for (int c = 0; c < components_of(shape); ++c)
        codes[static_cast<std::size_t>(c)] = codes_of(*frame, c, 0, 1)[0];
    return codes;
}

TEST(frame_writer, limits_rounds_and_places_every_component)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    const std::tuple<AVPixelFormat, argb_float, std::array<int, 4>> rows[] = {
        {AV_PIX_FMT_RGB24, {1, 0.2f, 0.4f, 0.6f}, {51, 102, 153, 0}},
        {AV_PIX_FMT_RGBA, {0.8f, 2, -1, nan}, {255, 0, 0, 204}},
        {AV_PIX_FMT_RGB48BE, {1, 0.2f, 0.4f, 0.6f}, {13107, 26214, 39321, 0}},
        {AV_PIX_FMT_GBRP10BE, {1, 0.25f, 0.5f, 0.75f}, {256, 512, 767, 0}}, // 255.75, 511.5 (upward), 767.25
        {AV_PIX_FMT_YUV444P, {1, 1, 0, 0}, {76, 85, 255, 0}},               // red of ITU-T T.871; Cr 255.5 is limited
        {AV_PIX_FMT_YUV420P, {1, 0, 1, nan}, {150, 44, 21, 0}},             // green
    };
    for (const auto& [pixels, colour, codes] : rows)
    {
        SCOPED_TRACE(av_get_pix_fmt_name(pixels));
        EXPECT_EQ(written(pixels, colour), codes);
    }
}

TEST(frame_writer, chroma_is_the_mean_of_its_pixels_at_odd_edges_too)
{
    // Three by three pixels, red in steps: chroma of 2x2, 1x2, 2x1 and 1x1 of them.
    constexpr std::size_t side = 3;
    std::vector<argb_float> pixels(side * side);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = {1, static_cast<float>(i) / 8, 0, 0};
    const frame_ptr frame = new_frame(AV_PIX_FMT_YUV420P, side, side);
    const frame_form shape = form(AV_PIX_FMT_YUV420P, {AVCOL_RANGE_JPEG, AVCOL_SPC_BT470BG, AVCHROMA_LOC_CENTER});
    frame_writer writer(*frame, shape);
    writer.write(2, 1, pixels.data() + 2 * side); // rows in any order
    writer.write(0, 2, pixels.data());
    // Cr = 128 + 255 * 0.5 * mean of red (kr = 0.299: Cr of red is 0.5)
    const double means[2][2] = {{(0 + 1 + 3 + 4) / 32.0, (2 + 5) / 16.0}, {(6 + 7) / 16.0, 1}};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            EXPECT_EQ(codes_of(*frame, 2, y, 2)[static_cast<std::size_t>(x)],
                      std::min(255L, std::lround(128 + 127.5 * means[y][x])))
                << x << ' ' << y;
}

TEST(frame_writer, halfs_are_rounded_before_the_encoder_truncates_them)
{
    const frame_ptr frame = new_frame(AV_PIX_FMT_GBRPF32LE, 1, 1);
    const argb_float colour{1, 1.0f + 0x1.8p-10f, 0.1f, -0x1.8p-24f};
    frame_writer(*frame, form(AV_PIX_FMT_GBRPF32LE), true).write(0, 1, &colour);
    EXPECT_EQ(load<float>(frame->data[2]), 1.0f + 0x2p-10f) << "ties to even";
    EXPECT_EQ(load<float>(frame->data[0]), 0x1.998p-4f) << "0.1 as binary16";
    EXPECT_EQ(load<float>(frame->data[1]), -0x2p-24f) << "subnormal";
}

} // namespace
} // namespace ov1::media

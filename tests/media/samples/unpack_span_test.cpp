#include "media/samples/unpack_span.h"

#include "media/base/libav.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace ov1::media
{
namespace
{

frame_ptr frame_of(AVPixelFormat format, int width, int height)
{
    frame_ptr frame(av_frame_alloc());
    frame->format = format;
    frame->width = width;
    frame->height = height;
    EXPECT_EQ(av_frame_get_buffer(frame.get(), 0), 0);
    return frame;
}

std::vector<argb_float> unpacked(const AVFrame& frame, std::size_t y, std::size_t first = 0)
{
    std::vector<argb_float> row(static_cast<std::size_t>(frame.width) - first);
    unpack_span(frame, first, y, row.size(), row.data());
    return row;
}

/// 4x4 pixels of Y = 128 over 2x2 samples of chroma: Cr grows by 80 to the right and by 8 downwards, Cb by 40 and 4.
frame_ptr chroma_steps(AVChromaLocation where)
{
    frame_ptr frame = frame_of(AV_PIX_FMT_YUV420P, 4, 4);
    frame->color_range = AVCOL_RANGE_JPEG;
    frame->chroma_location = where;
    for (int plane = 0; plane < 3; ++plane)
        for (int y = 0; y < (plane == 0 ? 4 : 2); ++y)
            for (int x = 0; x < (plane == 0 ? 4 : 2); ++x)
                frame->data[plane][y * frame->linesize[plane] + x] =
                    static_cast<std::uint8_t>(128 + plane * (x * 40 + y * 4));
    return frame;
}

TEST(unpack_span, interpolates_chroma_from_where_it_sits)
{
    // How far each pixel lies from the first chroma sample to the second, held at both ends.
    using places = std::array<double, 4>;
    constexpr places amid{0, 0.25, 0.75, 1}, on_first{0, 0.5, 1, 1}, on_last{0, 0, 0.5, 1};
    const std::tuple<const char*, AVChromaLocation, places, places> cases[] = {
        {"centre", AVCHROMA_LOC_CENTER, amid, amid},
        {"unspecified", AVCHROMA_LOC_UNSPECIFIED, amid, amid},
        {"left", AVCHROMA_LOC_LEFT, on_first, amid},
        {"top left", AVCHROMA_LOC_TOPLEFT, on_first, on_first},
        {"top", AVCHROMA_LOC_TOP, amid, on_first},
        {"bottom", AVCHROMA_LOC_BOTTOM, amid, on_last},
        {"bottom left", AVCHROMA_LOC_BOTTOMLEFT, on_first, on_last},
    };
    for (const auto& [name, where, across, down] : cases)
    {
        SCOPED_TRACE(name);
        const frame_ptr frame = chroma_steps(where);
        ASSERT_TRUE(can_unpack(*frame));
        for (std::size_t y = 0; y < 4; ++y)
        {
            const std::vector<argb_float> row = unpacked(*frame, y);
            for (std::size_t x = 0; x < 4; ++x)
            {
                const double cr = 80 * across[x] + 8 * down[y];
                const double cb = cr / 2;
                // T.871: R = Y + 1.402 Cr, G = Y - 0.344136 Cb - 0.714136 Cr, B = Y + 1.772 Cb
                EXPECT_NEAR(row[x].r, std::min(1.0, (128 + 1.402 * cr) / 255), 1e-6) << x << " " << y;
                EXPECT_NEAR(row[x].g, (128 - 0.344136 * cb - 0.714136 * cr) / 255, 1e-6);
                EXPECT_NEAR(row[x].b, (128 + 1.772 * cb) / 255, 1e-6);
                EXPECT_EQ(unpacked(*frame, y, x)[0], row[x]) << "a span that begins inside";
            }
        }
    }
}

TEST(unpack_span, takes_range_and_matrix_from_the_frame)
{
    // Pure colours as the standards code them, rounded: the tolerance is that of one code in the smaller range.
    constexpr AVPixelFormat eight = AV_PIX_FMT_YUV444P, ten = AV_PIX_FMT_YUV444P10LE;
    constexpr AVColorRange full = AVCOL_RANGE_JPEG, limited = AVCOL_RANGE_MPEG;
    const struct
    {
        const char* name;
        AVPixelFormat format;
        AVColorRange range;
        AVColorSpace matrix;
        std::uint16_t code[3];
        argb_float expected;
    } cases[] = {
        {"601 red", eight, full, AVCOL_SPC_BT470BG, {76, 85, 255}, {1, 1, 0, 0}},
        {"601 limited red", eight, limited, AVCOL_SPC_SMPTE170M, {81, 90, 240}, {1, 1, 0, 0}},
        {"709 limited green", eight, limited, AVCOL_SPC_BT709, {173, 42, 26}, {1, 0, 1, 0}},
        {"2020 limited blue", ten, limited, AVCOL_SPC_BT2020_NCL, {116, 960, 476}, {1, 0, 0, 1}},
        {"beyond white", eight, limited, AVCOL_SPC_BT709, {250, 128, 128}, {1, 1, 1, 1}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.name);
        const frame_ptr frame = frame_of(c.format, 1, 1);
        frame->color_range = c.range;
        frame->colorspace = c.matrix;
        for (int plane = 0; plane < 3; ++plane)
            std::memcpy(frame->data[plane], &c.code[plane], 2); // little-endian; frames are padded
        const argb_float color = unpacked(*frame, 0)[0];
        for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
        {
            EXPECT_NEAR(color.*channel, c.expected.*channel, 0.007);
            EXPECT_LE(color.*channel, 1.0f);
        }
    }
}

TEST(unpack_span, knows_packed_words_palettes_and_bits)
{
    const std::tuple<const char*, AVPixelFormat, std::vector<std::uint8_t>, argb_float> cases[] = {
        {"bgra", AV_PIX_FMT_BGRA, {51, 102, 153, 204}, {0.8f, 0.6f, 0.4f, 0.2f}},
        {"rgb48be", AV_PIX_FMT_RGB48BE, {0x33, 0x33, 0x66, 0x66, 0x99, 0x99}, {1, 0.2f, 0.4f, 0.6f}},
        {"rgb48le", AV_PIX_FMT_RGB48LE, {0xFF, 0, 0, 0, 0xFF, 0xFF}, {1, 255.0f / 65535, 0, 1}},
        {"ya16be", AV_PIX_FMT_YA16BE, {0x33, 0x33, 0x99, 0x99}, {0.6f, 0.2f, 0.2f, 0.2f}},
        {"rgb565le", AV_PIX_FMT_RGB565LE, {0x3F, 0xF8}, {1, 1, 1.0f / 63, 1}},
        {"rgb565be", AV_PIX_FMT_RGB565BE, {0xF8, 0x3E}, {1, 1, 1.0f / 63, 30.0f / 31}},
        {"grayf32be", AV_PIX_FMT_GRAYF32BE, {0xC0, 0, 0, 0}, {1, -2, -2, -2}},
        {"monowhite", AV_PIX_FMT_MONOWHITE, {0x7F}, {1, 1, 1, 1}},
        {"monoblack", AV_PIX_FMT_MONOBLACK, {0x7F}, {1, 0, 0, 0}},
    };
    for (const auto& [name, format, bytes, expected] : cases)
    {
        SCOPED_TRACE(name);
        const frame_ptr frame = frame_of(format, 1, 1);
        ASSERT_TRUE(can_unpack(*frame));
        std::copy(bytes.begin(), bytes.end(), frame->data[0]);
        EXPECT_EQ(unpacked(*frame, 0)[0], expected);
    }
    const frame_ptr palette = frame_of(AV_PIX_FMT_PAL8, 2, 1);
    palette->data[0][1] = 7;
    const std::uint32_t color = 0xCC336699u;
    std::memcpy(palette->data[1] + 28, &color, 4);
    EXPECT_EQ(unpacked(*palette, 0)[1], (argb_float{0.8f, 0.2f, 0.4f, 0.6f}));
}

TEST(unpack_span, refuses_layouts_that_would_come_out_wrong)
{
    AVFrame frame{};
    for (const AVPixelFormat format : {AV_PIX_FMT_XYZ12LE, AV_PIX_FMT_BAYER_RGGB8, AV_PIX_FMT_VAAPI, AV_PIX_FMT_NONE})
    {
        frame.format = format;
        EXPECT_FALSE(can_unpack(frame)) << format;
    }
    frame.format = AV_PIX_FMT_YUV444P;
    frame.colorspace = AVCOL_SPC_YCGCO;
    EXPECT_FALSE(can_unpack(frame));
}

} // namespace
} // namespace ov1::media

#include "media/samples/frame_reader.h"

#include "media/samples/frame_grader.h"
#include "media/samples/frames.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <thread>

namespace ov1::media
{
namespace
{

std::vector<argb_float> all_of(const frame_reader& reader, std::size_t width, std::size_t height)
{
    std::vector<argb_float> pixels(width * height);
    reader.read(0, 0, width, height, pixels.data());
    return pixels;
}

argb_float first_pixel(frame_ptr frame, const colour_tags& tags = {AVCOL_RANGE_JPEG, {}, {}})
{
    const frame_form shape = form(static_cast<AVPixelFormat>(frame->format), tags, frame->width, frame->height);
    return all_of(frame_reader(std::move(frame), shape), 1, 1)[0];
}

/// The largest difference between the codes that a graded clip holds of a frame and those of its pixels as a picture.
int largest_difference(const AVFrame& clip, const std::vector<argb_float>& still)
{
    int largest = 0;
    for (int y = 0; y < clip.height; ++y)
        for (const auto& [component, channel] :
             {std::pair{0, &argb_float::r}, {1, &argb_float::g}, {2, &argb_float::b}})
        {
            const auto codes = codes_of(clip, component, y, clip.width);
            for (std::size_t x = 0; x < codes.size(); ++x)
            {
                const float value = still[static_cast<std::size_t>(y) * codes.size() + x].*channel;
                largest = std::max(largest, std::abs(static_cast<int>(std::lround(value * 65535)) - codes[x]));
            }
        }
    return largest;
}

TEST(frame_reader, gives_the_colours_that_a_graded_clip_has)
{
    constexpr AVPixelFormat formats[] = {AV_PIX_FMT_YUV420P,     AV_PIX_FMT_YUV422P, AV_PIX_FMT_YUV444P,
                                         AV_PIX_FMT_YUV440P,     AV_PIX_FMT_YUV411P, AV_PIX_FMT_NV12,
                                         AV_PIX_FMT_YUV420P10LE, AV_PIX_FMT_P010LE,  AV_PIX_FMT_UYVY422,
                                         AV_PIX_FMT_GRAY8,       AV_PIX_FMT_RGB24};
    constexpr AVChromaLocation places[] = {AVCHROMA_LOC_UNSPECIFIED, AVCHROMA_LOC_LEFT, AVCHROMA_LOC_CENTER,
                                           AVCHROMA_LOC_TOPLEFT,     AVCHROMA_LOC_TOP,  AVCHROMA_LOC_BOTTOMLEFT,
                                           AVCHROMA_LOC_BOTTOM};
    for (const AVPixelFormat pixels : formats)
        for (const AVChromaLocation place : places)
            for (const AVColorSpace matrix : {AVCOL_SPC_SMPTE170M, AVCOL_SPC_BT709, AVCOL_SPC_BT2020_NCL})
                for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG})
                    for (const auto& [width, height, interlaced] : {std::array{34, 18, 0}, {33, 17, 0}, {5, 7, 1}})
                    {
                        SCOPED_TRACE(std::string(av_get_pix_fmt_name(pixels)) + " place " + std::to_string(place) +
                                     " matrix " + std::to_string(matrix) + " range " + std::to_string(range) +
                                     " width " + std::to_string(width));
                        const frame_form shape = form(pixels, {range, matrix, place}, width, height);
                        frame_ptr in = new_frame(pixels, width, height);
                        fill(*in, shape, 11);
                        in->interlaced_frame = interlaced;
                        const frame_ptr clip = new_frame(AV_PIX_FMT_GBRP16LE, width, height);
                        frame_grader(shape, form(AV_PIX_FMT_GBRP16LE)).grade(*in, *clip, {}, run_in_turn);
                        const frame_reader still(std::move(in), shape);
                        // Both round to 24 bits of a float: far less than a code of 16 bits, but maybe across its end.
                        EXPECT_LE(largest_difference(*clip, all_of(still, width, height)), 1);
                    }
}

TEST(frame_reader, rectangles_from_any_thread_are_parts_of_the_whole)
{
    constexpr std::size_t width = 1301, height = 23; // several blocks, the last one odd
    for (const AVPixelFormat pixels : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV411P, AV_PIX_FMT_RGB24, AV_PIX_FMT_YUVA444P})
    {
        SCOPED_TRACE(av_get_pix_fmt_name(pixels));
        const frame_form shape = form(pixels, {{}, {}, AVCHROMA_LOC_TOPLEFT}, width, height);
        frame_ptr frame = new_frame(pixels, width, height);
        fill(*frame, shape, 4);
        const frame_reader reader(std::move(frame), shape);
        const std::vector<argb_float> whole = all_of(reader, width, height);
        const auto check = [&](unsigned seed)
        {
            std::mt19937 random(seed);
            for (int i = 0; i < 200; ++i)
            {
                const std::size_t x = random() % width, y = random() % height;
                const std::size_t columns = 1 + random() % (width - x), rows = 1 + random() % (height - y);
                std::vector<argb_float> part(columns * rows);
                reader.read(x, y, columns, rows, part.data());
                for (std::size_t row = 0; row < rows; ++row)
                    ASSERT_TRUE(std::equal(part.begin() + std::ptrdiff_t(row * columns),
                                           part.begin() + std::ptrdiff_t((row + 1) * columns),
                                           whole.begin() + std::ptrdiff_t((y + row) * width + x)))
                        << x << ' ' << y << ' ' << columns;
            }
        };
        std::jthread other(check, 1);
        check(2);
    }
}

TEST(frame_reader, takes_range_and_matrix_from_the_form)
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
        {"240M limited red", eight, limited, AVCOL_SPC_SMPTE240M, {62, 102, 240}, {1, 1, 0, 0}},
        {"beyond white", eight, limited, AVCOL_SPC_BT709, {250, 128, 128}, {1, 1, 1, 1}},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.name);
        frame_ptr frame = new_frame(c.format, 1, 1);
        for (int component = 0; component < 3; ++component)
            set_codes(*frame, component, 0, {c.code[component]});
        const argb_float color = first_pixel(std::move(frame), {c.range, c.matrix, {}});
        for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
        {
            EXPECT_NEAR(color.*channel, c.expected.*channel, 0.007);
            EXPECT_LE(color.*channel, 1.0f);
        }
    }
}

TEST(frame_reader, every_integer_is_its_code_over_the_largest_rounded_once)
{
    for (const AVPixelFormat pixels : {AV_PIX_FMT_GRAY8, AV_PIX_FMT_GRAY10LE, AV_PIX_FMT_GRAY12LE, AV_PIX_FMT_GRAY16LE})
    {
        const frame_form shape = form(pixels, {AVCOL_RANGE_JPEG, {}, {}});
        const int count = 1 << shape.bits;
        frame_ptr frame = new_frame(pixels, count, 1);
        std::vector<std::uint16_t> codes(static_cast<std::size_t>(count));
        for (std::size_t i = 0; i < codes.size(); ++i)
            codes[i] = static_cast<std::uint16_t>(i);
        set_codes(*frame, 0, 0, codes);
        const auto row = all_of(frame_reader(std::move(frame), shape), codes.size(), 1);
        for (std::size_t i = 0; i < row.size(); ++i)
            ASSERT_EQ(row[i].g, static_cast<float>(static_cast<double>(i) / (count - 1))) << i;
    }
}

TEST(frame_reader, reads_packed_words_palettes_and_bits)
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
        frame_ptr frame = new_frame(format, 1, 1);
        std::copy(bytes.begin(), bytes.end(), frame->data[0]);
        EXPECT_EQ(first_pixel(std::move(frame)), expected);
    }
    frame_ptr palette = new_frame(AV_PIX_FMT_PAL8, 2, 1);
    palette->data[0][1] = 7;
    const std::uint32_t color = 0xCC336699u;
    std::memcpy(palette->data[1] + 28, &color, 4);
    const frame_form shape = form(AV_PIX_FMT_PAL8);
    EXPECT_EQ(all_of(frame_reader(std::move(palette), shape), 2, 1)[1], (argb_float{0.8f, 0.2f, 0.4f, 0.6f}));
}

} // namespace
} // namespace ov1::media

#include "media/samples/frame_grader.h"

#include "effect/lut/instruction_sets.h"
#include "effect/lut/row_kernel.h"
#include "media/samples/frames.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

namespace ov1::media
{
namespace
{

int largest_difference(const AVFrame& a, const AVFrame& b, const frame_form& form)
{
    int largest = 0;
    for (int c = 0; c < components_of(form); ++c)
    {
        const auto [width, height] = size_of(a, form, c);
        for (int y = 0; y < height; ++y)
        {
            const auto left = codes_of(a, c, y, width), right = codes_of(b, c, y, width);
            for (std::size_t x = 0; x < left.size(); ++x)
                largest = std::max(largest, std::abs(left[x] - right[x]));
        }
    }
    return largest;
}

plane_grade through(const render_table& table)
{
    return [&](std::size_t, const rgb_planes<float>& row, std::size_t count)
    { row_kernel::render_planes(table, {row.r, row.g, row.b}, row, count); };
}

constexpr AVPixelFormat all_forms[] = {
    AV_PIX_FMT_YUV444P,     AV_PIX_FMT_YUV422P,     AV_PIX_FMT_YUV420P,     AV_PIX_FMT_YUV440P,
    AV_PIX_FMT_YUV411P,     AV_PIX_FMT_YUV410P,     AV_PIX_FMT_YUVJ420P,    AV_PIX_FMT_NV12,
    AV_PIX_FMT_P010LE,      AV_PIX_FMT_UYVY422,     AV_PIX_FMT_YUVA420P,    AV_PIX_FMT_YUV420P10LE,
    AV_PIX_FMT_YUV422P10LE, AV_PIX_FMT_YUV444P10LE, AV_PIX_FMT_YUV420P12LE, AV_PIX_FMT_YUVA444P12LE,
    AV_PIX_FMT_YUV422P16LE, AV_PIX_FMT_YUV420P10BE, AV_PIX_FMT_GRAY8,       AV_PIX_FMT_GRAY10LE,
    AV_PIX_FMT_GBRP,        AV_PIX_FMT_GBRP12LE,    AV_PIX_FMT_GBRAP10LE,   AV_PIX_FMT_RGB24,
    AV_PIX_FMT_BGRA,        AV_PIX_FMT_RGB48BE,     AV_PIX_FMT_RGBA64LE};

TEST(frame_grader, an_identity_table_gives_every_code_back)
{
    const render_table identity{lut_argb<lut_edge>{}};
    for (const AVPixelFormat pixels : all_forms)
        for (const AVColorRange range : {AVCOL_RANGE_MPEG, AVCOL_RANGE_JPEG})
            for (const AVChromaLocation place : {AVCHROMA_LOC_LEFT, AVCHROMA_LOC_CENTER, AVCHROMA_LOC_TOPLEFT})
                for (const auto [width, height, interlaced] :
                     {std::array{70, 66, 0}, {33, 35, 0}, {17, 6, 1}, {1, 1, 0}})
                {
                    SCOPED_TRACE(std::string(av_get_pix_fmt_name(pixels)) + " range " + std::to_string(range) +
                                 " place " + std::to_string(place) + " width " + std::to_string(width));
                    const frame_form shape = form(pixels, {range, AVCOL_SPC_BT709, place}, width, height);
                    ASSERT_TRUE(can_be_written(shape));
                    const frame_ptr in = new_frame(pixels, width, height), out = new_frame(pixels, width, height);
                    fill(*in, shape, 5);
                    in->interlaced_frame = interlaced;
                    frame_grader(shape, shape).grade(*in, *out, through(identity), run_in_turn);
                    const int codes = largest_difference(*in, *out, shape);
                    // Floats of 24 bits leave a code of 16 bits a few hundredths of room.
                    EXPECT_EQ(codes, 0);
                    const frame_form floats = form(AV_PIX_FMT_GBRPF32, {}, width, height);
                    const frame_ptr between = new_frame(AV_PIX_FMT_GBRPF32, width, height);
                    const frame_ptr back = new_frame(pixels, width, height);
                    between->interlaced_frame = back->interlaced_frame = interlaced;
                    frame_grader(shape, floats).grade(*in, *between, {}, run_in_turn);
                    frame_grader(floats, shape).grade(*between, *back, {}, run_in_turn);
                    if (!shape.has_alpha) // which the form between would lose
                    {
                        EXPECT_EQ(largest_difference(*in, *back, shape), 0);
                    }
                }
}

TEST(frame_grader, colours_are_those_of_the_standards_and_come_back_in_another_form)
{
    struct coded
    {
        const char* name;
        AVPixelFormat pixels;
        AVColorRange range;
        AVColorSpace matrix;
        std::uint16_t codes[3];
        double tolerance; ///< half a code, through the matrix
    };
    // Pure red: 255 codes or 16..235, Cr at its end; worked out by hand from kr and kb of ITU-T H.273.
    const coded reds[] = {
        {"601", AV_PIX_FMT_YUV444P, AVCOL_RANGE_MPEG, AVCOL_SPC_SMPTE170M, {81, 90, 240}, 0.006},
        {"709", AV_PIX_FMT_YUV444P, AVCOL_RANGE_MPEG, AVCOL_SPC_BT709, {63, 102, 240}, 0.006},
        {"601 full", AV_PIX_FMT_YUVJ444P, AVCOL_RANGE_UNSPECIFIED, AVCOL_SPC_BT470BG, {76, 85, 255}, 0.006},
        {"2020", AV_PIX_FMT_YUV444P10LE, AVCOL_RANGE_MPEG, AVCOL_SPC_BT2020_NCL, {294, 387, 960}, 0.0015},
        {"240M", AV_PIX_FMT_YUV444P, AVCOL_RANGE_MPEG, AVCOL_SPC_SMPTE240M, {62, 102, 240}, 0.006},
        {"limited rgb", AV_PIX_FMT_RGB24, AVCOL_RANGE_MPEG, AVCOL_SPC_RGB, {235, 16, 16}, 1e-6},
        {"rgb", AV_PIX_FMT_GBRP12LE, AVCOL_RANGE_UNSPECIFIED, AVCOL_SPC_RGB, {4095, 0, 0}, 1e-6},
    };
    const frame_form rgb16 = form(AV_PIX_FMT_RGB48LE);
    for (const coded& red : reds)
    {
        SCOPED_TRACE(red.name);
        const frame_form shape = form(red.pixels, {red.range, red.matrix, {}});
        const frame_ptr in = new_frame(red.pixels, 1, 1), out = new_frame(AV_PIX_FMT_RGB48LE, 1, 1);
        const frame_ptr back = new_frame(red.pixels, 1, 1);
        for (int c = 0; c < 3; ++c)
            set_codes(*in, c, 0, {red.codes[c]});
        argb_float seen;
        frame_grader(shape, rgb16)
            .grade(
                *in, *out, [&](std::size_t, const rgb_planes<float>& row, std::size_t)
                { seen = {1, row.r[0], row.g[0], row.b[0]}; }, run_in_turn);
        EXPECT_NEAR(seen.r, 1, red.tolerance);
        EXPECT_NEAR(seen.g, 0, red.tolerance);
        EXPECT_NEAR(seen.b, 0, red.tolerance);
        frame_grader(rgb16, shape).grade(*out, *back, {}, run_in_turn);
        EXPECT_LE(largest_difference(*in, *back, shape), 1);
    }
}

/// What red less luma is at each pixel, where chroma goes from 128 in steps of 8 codes and luma is 128.
std::vector<double> chroma_seen(AVPixelFormat pixels, AVChromaLocation place, bool down, bool interlaced = false)
{
    constexpr int side = 8;
    const frame_form shape = form(pixels, {AVCOL_RANGE_MPEG, AVCOL_SPC_BT709, place}, side, side);
    const frame_ptr in = new_frame(pixels, side, side);
    in->interlaced_frame = interlaced;
    for (int y = 0; y < side; ++y)
        set_codes(*in, 0, y, std::vector<std::uint16_t>(side, 128));
    for (int c : {1, 2})
        for (int y = 0; y < size_of(*in, shape, c).height; ++y)
        {
            std::vector<std::uint16_t> row(static_cast<std::size_t>(size_of(*in, shape, c).width));
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = static_cast<std::uint16_t>(128 + 8 * (down ? static_cast<std::size_t>(y) : x));
            set_codes(*in, c, y, row);
        }
    const frame_ptr out = new_frame(AV_PIX_FMT_GBRPF32, side, side);
    frame_grader(shape, form(AV_PIX_FMT_GBRPF32, {}, side, side)).grade(*in, *out, {}, run_in_turn);
    std::vector<double> steps;
    for (int i = 0; i < side; ++i)
    {
        const std::uint8_t* const red = out->data[2] + (down ? i * out->linesize[2] : i * 4);
        steps.push_back((load<float>(red) - 112.0 / 219) / 1.5748 * 224 / 8);
    }
    return steps;
}

TEST(frame_grader, chroma_lies_where_the_stream_says_and_fields_are_apart)
{
    const struct
    {
        const char* name;
        AVPixelFormat pixels;
        AVChromaLocation place;
        bool down;
        bool interlaced;
        std::vector<double> steps; ///< of the chroma ramp, at each pixel
    } rows[] = {
        {"left", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT, false, false, {0, .5, 1, 1.5, 2, 2.5, 3, 3}},
        {"unsaid", AV_PIX_FMT_YUV422P, AVCHROMA_LOC_UNSPECIFIED, false, false, {0, .5, 1, 1.5, 2, 2.5, 3, 3}},
        {"center", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_CENTER, false, false, {0, 0, 1, 1, 2, 2, 3, 3}},
        {"left, down", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT, true, false, {0, 0, 1, 1, 2, 2, 3, 3}},
        {"topleft, down", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_TOPLEFT, true, false, {0, .5, 1, 1.5, 2, 2.5, 3, 3}},
        {"bottomleft, down", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_BOTTOMLEFT, true, false, {0, 0, .5, 1, 1.5, 2, 2.5, 3}},
        {"fields, down", AV_PIX_FMT_YUV420P, AVCHROMA_LOC_LEFT, true, true, {0, 1, 0, 1, 2, 3, 2, 3}}, // top, bottom
        {"a sample for each row", AV_PIX_FMT_YUV422P, AVCHROMA_LOC_LEFT, true, true, {0, 1, 2, 3, 4, 5, 6, 7}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const auto seen = chroma_seen(row.pixels, row.place, row.down, row.interlaced);
        ASSERT_EQ(seen.size(), row.steps.size());
        for (std::size_t i = 0; i < seen.size(); ++i)
            EXPECT_NEAR(seen[i], row.steps[i], 1e-4) << i;
    }
}

TEST(frame_grader, every_instruction_set_and_every_cut_gives_the_same_codes)
{
    lut_argb<lut_edge> wild;
    std::mt19937 engine(3);
    for (argb_float& c : wild.get_entries())
        c = {1, static_cast<float>(engine() % 1000) / 800, static_cast<float>(engine() % 1000) / 1000 - 0.1f, c.b};
    const render_table table(wild);
    for (const AVPixelFormat pixels : {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P10LE, AV_PIX_FMT_YUV444P12LE})
    {
        const frame_form shape = form(pixels, {AVCOL_RANGE_MPEG, AVCOL_SPC_BT709, AVCHROMA_LOC_TOPLEFT}, 157, 150);
        const frame_ptr in = new_frame(pixels, 157, 150), first = new_frame(pixels, 157, 150);
        fill(*in, shape, 9);
        frame_grader(shape, shape).grade(*in, *first, through(table), run_in_turn);
        EXPECT_GT(largest_difference(*in, *first, shape), 20);
        for (const instruction_set& set : present_instruction_sets())
        {
            SCOPED_TRACE(set.name);
            const forced_instruction_set forced(set);
            const frame_ptr out = new_frame(pixels, 157, 150);
            const auto backwards = [](std::size_t pieces, const auto& work)
            {
                while (pieces-- > 0)
                    work(pieces);
            };
            frame_grader(shape, shape).grade(*in, *out, through(table), backwards);
            EXPECT_EQ(largest_difference(*first, *out, shape), 0);
        }
    }
}

} // namespace
} // namespace ov1::media

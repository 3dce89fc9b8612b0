#include "media/samples/frame_form.h"

#include "media/samples/frames.h"

namespace ov1::media
{
namespace
{

TEST(frame_form, refuses_pixel_formats_and_matrices_by_name)
{
    const struct
    {
        AVPixelFormat pixels;
        int matrix;
        const char* says;
    } rows[] = {
        {AV_PIX_FMT_YUV420P, AVCOL_SPC_YCGCO, "the colour matrix ycgco is not supported"},
        {AV_PIX_FMT_YUV444P10LE, AVCOL_SPC_BT2020_CL, "the colour matrix bt2020c is not supported"},
        {AV_PIX_FMT_NV12, AVCOL_SPC_ICTCP, "the colour matrix ictcp is not supported"},
        {AV_PIX_FMT_YUV420P, 200, "the colour matrix code 200 is not supported"}, // libav has no name for it
        {AV_PIX_FMT_XYZ12LE, AVCOL_SPC_UNSPECIFIED, "the pixel format xyz12le is not supported"},
        {AV_PIX_FMT_BAYER_RGGB8, AVCOL_SPC_UNSPECIFIED, "the pixel format bayer_rggb8 is not supported"},
        {AV_PIX_FMT_VAAPI, AVCOL_SPC_UNSPECIFIED, "the pixel format vaapi is not supported"},
        {AV_PIX_FMT_NONE, AVCOL_SPC_UNSPECIFIED, "the pixel format unknown is not supported"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.says);
        const colour_tags tags{AVCOL_RANGE_MPEG, row.matrix, {}};
        const auto made = form_of(row.pixels, tags, 64, 64);
        ASSERT_FALSE(made);
        EXPECT_EQ(made.error().kind, failure_kind::unsupported);
        EXPECT_EQ(made.error().reason, row.says);
    }
}

TEST(frame_form, fills_in_what_the_tags_leave_open)
{
    const struct
    {
        const char* name;
        AVPixelFormat pixels;
        colour_tags tags;
        int width, height;
        float kr;
        float luma_zero; ///< of codes: 0 is full range
        bool on_left;    ///< chroma lies on the left pixel
    } rows[] = {
        {"small", AV_PIX_FMT_YUV420P, {}, 1024, 576, 0.299f, 16, true},
        {"wide", AV_PIX_FMT_YUV420P, {}, 1026, 64, 0.2126f, 16, true},
        {"tall", AV_PIX_FMT_YUV420P, {}, 64, 578, 0.2126f, 16, true},
        {"jpeg", AV_PIX_FMT_YUVJ420P, {}, 64, 64, 0.299f, 0, false},
        {"full", AV_PIX_FMT_YUV420P, {AVCOL_RANGE_JPEG, AVCOL_SPC_FCC, {}}, 64, 64, 0.30f, 0, false},
        {"ten bits", AV_PIX_FMT_YUV422P10LE, {{}, AVCOL_SPC_SMPTE240M, {}}, 64, 64, 0.212f, 64, true},
        {"rgb tag", AV_PIX_FMT_YUV420P, {{}, AVCOL_SPC_RGB, {}}, 64, 64, 0.299f, 16, true},
        {"centre", AV_PIX_FMT_YUV420P, {{}, {}, AVCHROMA_LOC_CENTER}, 64, 64, 0.299f, 16, false},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const frame_form made = form(row.pixels, row.tags, row.width, row.height);
        EXPECT_EQ(made.weights.kr, row.kr);
        EXPECT_EQ(made.components[0].range.zero, row.luma_zero);
        EXPECT_EQ(made.across.site.has_value(), row.on_left);
    }
}

TEST(frame_form, stills_have_all_codes_and_the_coding_of_jpeg)
{
    const frame_ptr gray = new_frame(AV_PIX_FMT_GRAY8, 4, 4), rgb = new_frame(AV_PIX_FMT_RGB24, 4, 4);
    const frame_ptr large = new_frame(AV_PIX_FMT_YUV420P, 2000, 4);
    gray->color_range = rgb->color_range = AVCOL_RANGE_MPEG; // a tag that such files do not mean
    EXPECT_EQ(still_tags(*gray, false).range, AVCOL_RANGE_JPEG);
    EXPECT_EQ(still_tags(*rgb, false).range, AVCOL_RANGE_JPEG);
    const colour_tags open{AVCOL_RANGE_UNSPECIFIED, AVCOL_SPC_BT470BG, AVCHROMA_LOC_CENTER};
    EXPECT_EQ(still_tags(*large, false), open);
    EXPECT_EQ(still_tags(*large, true).range, AVCOL_RANGE_JPEG);
    large->color_range = AVCOL_RANGE_MPEG;
    large->colorspace = AVCOL_SPC_BT709;
    large->chroma_location = AVCHROMA_LOC_TOPLEFT;
    const colour_tags tagged{AVCOL_RANGE_MPEG, AVCOL_SPC_BT709, AVCHROMA_LOC_TOPLEFT};
    EXPECT_EQ(still_tags(*large, true), tagged);
}

TEST(frame_form, what_is_only_read_is_neither_graded_nor_written)
{
    const struct
    {
        AVPixelFormat pixels;
        bool graded, written;
    } rows[] = {
        {AV_PIX_FMT_PAL8, false, false},     {AV_PIX_FMT_MONOWHITE, false, false}, {AV_PIX_FMT_RGB565LE, false, false},
        {AV_PIX_FMT_X2RGB10LE, true, false}, {AV_PIX_FMT_P010LE, true, true},      {AV_PIX_FMT_GBRPF32, true, true},
        {AV_PIX_FMT_GRAY8, true, true},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(av_get_pix_fmt_name(row.pixels));
        EXPECT_EQ(can_be_graded(form(row.pixels)), row.graded);
        EXPECT_EQ(can_be_written(form(row.pixels)), row.written);
    }
}

} // namespace
} // namespace ov1::media

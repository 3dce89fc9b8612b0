#include "media/clips/clip_form.h"

#include "media/samples/frames.h"

namespace ov1::media
{
namespace
{

TEST(clip_form, the_request_overrides_the_frame_and_the_frame_the_stream)
{
    const struct
    {
        const char* name;
        colour_tags frame, stream;
        clip_request request;
        colour_tags expected;
    } rows[] = {
        {"nothing is said", {}, {}, {}, {}},
        {"the stream alone",
         {},
         {AVCOL_RANGE_JPEG, AVCOL_SPC_BT709, AVCHROMA_LOC_TOP},
         {},
         {AVCOL_RANGE_JPEG, AVCOL_SPC_BT709, AVCHROMA_LOC_TOP}},
        {"the frame's first",
         {AVCOL_RANGE_MPEG, AVCOL_SPC_SMPTE170M, AVCHROMA_LOC_UNSPECIFIED},
         {AVCOL_RANGE_JPEG, AVCOL_SPC_BT709, AVCHROMA_LOC_TOP},
         {},
         {AVCOL_RANGE_MPEG, AVCOL_SPC_SMPTE170M, AVCHROMA_LOC_TOP}},
        {"the request's first",
         {AVCOL_RANGE_MPEG, AVCOL_SPC_YCGCO, AVCHROMA_LOC_LEFT},
         {},
         {.range = range_choice::full, .matrix = matrix_choice::bt2020},
         {AVCOL_RANGE_JPEG, AVCOL_SPC_BT2020_NCL, AVCHROMA_LOC_LEFT}},
        {"601", {}, {}, {.matrix = matrix_choice::bt601}, {{}, AVCOL_SPC_SMPTE170M, {}}},
        {"709",
         {},
         {},
         {.range = range_choice::limited, .matrix = matrix_choice::bt709},
         {AVCOL_RANGE_MPEG, AVCOL_SPC_BT709, {}}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const frame_ptr frame = new_frame(AV_PIX_FMT_YUV420P, 4, 4);
        frame->color_range = row.frame.range;
        frame->colorspace = static_cast<AVColorSpace>(row.frame.matrix);
        frame->chroma_location = row.frame.chroma;
        AVCodecParameters stream{};
        stream.color_range = row.stream.range;
        stream.color_space = static_cast<AVColorSpace>(row.stream.matrix);
        stream.chroma_location = row.stream.chroma;
        EXPECT_EQ(clip_tags(*frame, stream, row.request), row.expected);
    }
}

TEST(clip_form, hints_at_the_option_only_where_it_helps)
{
    const frame_ptr wrong_matrix = new_frame(AV_PIX_FMT_YUV420P, 4, 4),
                    wrong_pixels = new_frame(AV_PIX_FMT_BAYER_RGGB8, 4, 4);
    const colour_tags tags{{}, AVCOL_SPC_ICTCP, {}};
    const auto matrix = clip_form(*wrong_matrix, tags), pixels = clip_form(*wrong_pixels, tags);
    ASSERT_TRUE(!matrix && !pixels);
    EXPECT_EQ(matrix.error().reason, "the colour matrix ictcp is not supported");
    EXPECT_NE(matrix.error().hint.find("--matrix"), std::string::npos);
    EXPECT_EQ(pixels.error().hint, "");
}

} // namespace
} // namespace ov1::media

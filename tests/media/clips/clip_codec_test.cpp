#include "media/clips/clip_codec.h"

#include "media/samples/frames.h"

namespace ov1::media
{
namespace
{

/// "name=value name=value", and the quantizer.
std::string settings_of(const clip_codec& codec)
{
    std::string text;
    for (const auto& [name, value] : codec.options)
        text += (text.empty() ? "" : " ") + name + '=' + value;
    if (codec.quantizer)
        text += " q=" + std::to_string(*codec.quantizer);
    return text;
}

AVCodecParameters stream_of(AVCodecID id, int profile = FF_PROFILE_UNKNOWN)
{
    AVCodecParameters stream{};
    stream.codec_id = id;
    stream.profile = profile;
    return stream;
}

TEST(clip_codec, follows_the_source_or_the_request_with_a_usual_quality)
{
    const struct
    {
        const char* name;
        AVCodecID source;
        int profile;
        AVPixelFormat pixels;
        clip_request request;
        const char* codec;
        const char* settings;
    } rows[] = {
        {"h264", AV_CODEC_ID_H264, -99, AV_PIX_FMT_YUV420P, {}, "h264", "crf=18"},
        {"best", AV_CODEC_ID_H264, -99, AV_PIX_FMT_YUV420P, {.quality = 100}, "h264", "crf=0"},
        {"worst", AV_CODEC_ID_H264, -99, AV_PIX_FMT_YUV420P, {.quality = 1}, "h264", "crf=50"}, // 99 % of 51
        {"fixed quantizer",
         AV_CODEC_ID_H264,
         -99,
         AV_PIX_FMT_YUV420P,
         {.codec = "mpeg4", .quality = 50},
         "mpeg4",
         " q=17"},
        {"same profile", AV_CODEC_ID_PRORES, 1, AV_PIX_FMT_YUV422P10LE, {}, "prores", "profile=1"},
        {"profile without room for 4:4:4", AV_CODEC_ID_PRORES, 2, AV_PIX_FMT_YUV444P10LE, {}, "prores", "profile=4"},
        {"from another codec", AV_CODEC_ID_H264, 100, AV_PIX_FMT_YUV420P, {.codec = "prores"}, "prores", "profile=3"},
        {"rgb", AV_CODEC_ID_FFV1, -99, AV_PIX_FMT_GBRP10LE, {.codec = "prores"}, "prores", "profile=4"},
        {"8 bits", AV_CODEC_ID_H264, -99, AV_PIX_FMT_YUV420P, {.codec = "dnxhr"}, "dnxhr", "profile=dnxhr_hq"},
        {"10 bits", AV_CODEC_ID_H264, -99, AV_PIX_FMT_YUV422P10LE, {.codec = "dnxhr"}, "dnxhr", "profile=dnxhr_hqx"},
        {"named profile",
         AV_CODEC_ID_H264,
         -99,
         AV_PIX_FMT_YUV420P,
         {.codec = "dnxhr_lb"},
         "dnxhr_lb",
         "profile=dnxhr_lb"},
        {"any lossless codec", AV_CODEC_ID_QTRLE, -99, AV_PIX_FMT_RGB24, {}, "qtrle", ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const auto codec = choose_codec(stream_of(row.source, row.profile), form(row.pixels), row.request);
        if (!codec && codec.error().reason.find("this build of libav") == 0)
            continue;
        ASSERT_TRUE(codec) << codec.error().reason;
        EXPECT_EQ(codec->name, row.codec);
        EXPECT_EQ(settings_of(*codec), row.settings);
    }
}

TEST(clip_codec, says_what_to_ask_for_instead)
{
    const struct
    {
        AVCodecID source;
        clip_request request;
        const char* reason;
        const char* hint;
    } rows[] = {
        {AV_CODEC_ID_H264, {.codec = "h265"}, "no codec h265 is written", "--codec takes h264, hevc, "},
        {AV_CODEC_ID_CINEPAK, {}, "its codec, cinepak, cannot be written", "--codec h264 or prores"},
        {AV_CODEC_ID_PRORES, {.quality = 50}, "prores has no quality to choose", "--codec prores_lt"},
        {AV_CODEC_ID_FFV1, {.quality = 50}, "ffv1 has no quality to choose", "leave --quality out"},
        {AV_CODEC_ID_QTRLE, {.quality = 50}, "qtrle has no quality to choose", "leave --quality out"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.reason);
        const auto codec = choose_codec(stream_of(row.source), form(AV_PIX_FMT_YUV420P), row.request);
        ASSERT_FALSE(codec);
        EXPECT_EQ(codec.error().kind, failure_kind::unsupported);
        EXPECT_EQ(codec.error().reason, row.reason);
        EXPECT_NE(codec.error().hint.find(row.hint), std::string::npos) << codec.error().hint;
    }
}

TEST(clip_codec, pixels_are_the_sources_or_lose_least)
{
    const struct
    {
        const char* codec;
        AVPixelFormat source;
        clip_request request;
        const char* expected; ///< a pixel format, or the reason
    } rows[] = {
        {"ffv1", AV_PIX_FMT_YUV422P10LE, {}, "yuv422p10le"},
        {"ffv1", AV_PIX_FMT_NV12, {}, "yuv420p"},
        {"ffv1", AV_PIX_FMT_UYVY422, {}, "yuv422p"},
        {"ffv1", AV_PIX_FMT_YUV420P, {.depth = depth::u10}, "yuv420p10le"},
        {"ffv1", AV_PIX_FMT_YUV420P, {.pixel_format = "gbrp16le"}, "gbrp16le"},
        {"prores", AV_PIX_FMT_YUV420P, {}, "yuv422p10le"},
        {"prores", AV_PIX_FMT_YUVA444P12LE, {}, "yuva444p10le"}, // alpha counts more than two bits
        {"mjpeg", AV_PIX_FMT_GBRP, {}, "yuvj444p"},
        {"prores", AV_PIX_FMT_YUV422P10LE, {.depth = depth::u8}, "prores is not written as samples of depth 8"},
        {"ffv1", AV_PIX_FMT_YUV420P, {.pixel_format = "yuv999"}, "ffv1 is not written as pixel format yuv999"},
        {"rawvideo", AV_PIX_FMT_YUV420P, {.pixel_format = "uyvy422"}, "uyvy422"},
        {"rawvideo", AV_PIX_FMT_YUV420P, {.pixel_format = "pal8"}, "pal8 is no pixel format that is written"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::string(row.codec) + " " + row.expected);
        const frame_form source = form(row.source);
        const auto codec = choose_codec(stream_of(AV_CODEC_ID_NONE), source, {.codec = row.codec});
        ASSERT_TRUE(codec) << codec.error().reason;
        const auto pixels = choose_pixels(*codec, source, row.request);
        EXPECT_EQ(pixels ? av_get_pix_fmt_name(*pixels) : pixels.error().reason, row.expected);
    }
}

TEST(clip_codec, names_what_is_lost)
{
    const std::tuple<AVPixelFormat, AVPixelFormat, const char*> rows[] = {
        {AV_PIX_FMT_YUV420P, AV_PIX_FMT_YUV422P10LE, ""},
        {AV_PIX_FMT_YUV444P, AV_PIX_FMT_YUV422P, "chroma of every pixel"},
        {AV_PIX_FMT_GBRAP10LE, AV_PIX_FMT_YUV420P, "alpha, more than 8 bits, chroma of every pixel"},
        {AV_PIX_FMT_YUV420P, AV_PIX_FMT_GRAY8, "colour"},
        {AV_PIX_FMT_GRAY8, AV_PIX_FMT_YUV420P, ""},
    };
    for (const auto& [from, to, lost] : rows)
        EXPECT_EQ(lost_samples(form(from), form(to)), lost);
}

} // namespace
} // namespace ov1::media

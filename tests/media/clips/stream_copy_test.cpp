#include "media/clips/stream_copy.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>

namespace ov1::media
{
namespace
{

struct format_deleter
{
    void operator()(AVFormatContext* format) const { avformat_free_context(format); }
};

/// A file of this format that is never written.
class stream_copy : public testing::Test
{
protected:
    static std::unique_ptr<AVFormatContext, format_deleter> file(const char* format)
    {
        AVFormatContext* made = nullptr;
        EXPECT_GE(avformat_alloc_output_context2(&made, nullptr, format, nullptr), 0);
        return std::unique_ptr<AVFormatContext, format_deleter>(made);
    }

    AVStream& stream(AVMediaType type, AVCodecID id, std::uint32_t tag = 0)
    {
        AVStream* made = avformat_new_stream(source.get(), nullptr);
        made->codecpar->codec_type = type;
        made->codecpar->codec_id = id;
        made->codecpar->codec_tag = tag;
        return *made;
    }

    std::unique_ptr<AVFormatContext, format_deleter> source = file("matroska");
};

TEST_F(stream_copy, names_say_kind_number_codec_and_language)
{
    AVStream& sound = stream(AVMEDIA_TYPE_AUDIO, AV_CODEC_ID_AAC);
    av_dict_set(&sound.metadata, "language", "deu", 0);
    EXPECT_EQ(stream_name(sound, 2), "audio 2 (aac, deu)");
    AVStream& cover = stream(AVMEDIA_TYPE_VIDEO, AV_CODEC_ID_MJPEG);
    cover.disposition = AV_DISPOSITION_ATTACHED_PIC;
    EXPECT_EQ(stream_name(cover, 1), "cover picture 1 (mjpeg)");
    EXPECT_EQ(stream_name(stream(AVMEDIA_TYPE_DATA, AV_CODEC_ID_NONE, MKTAG('g', 'p', 'm', 'd')), 1), "data 1 (gpmd)");
    EXPECT_EQ(kind_name(stream(AVMEDIA_TYPE_UNKNOWN, AV_CODEC_ID_NONE)), "stream");
}

TEST_F(stream_copy, timecode_and_chapter_tracks_are_recognised)
{
    const AVStream& timecode = stream(AVMEDIA_TYPE_DATA, AV_CODEC_ID_NONE, MKTAG('t', 'm', 'c', 'd'));
    const AVStream& text = stream(AVMEDIA_TYPE_DATA, AV_CODEC_ID_BIN_DATA, MKTAG('t', 'e', 'x', 't'));
    EXPECT_TRUE(is_timecode(timecode));
    EXPECT_FALSE(is_timecode(text));
    EXPECT_FALSE(is_chapter_text(*source, text)) << "without chapters it is a text track";
    source->chapters = static_cast<AVChapter**>(av_calloc(1, sizeof(AVChapter*)));
    source->chapters[0] = static_cast<AVChapter*>(av_mallocz(sizeof(AVChapter)));
    source->nb_chapters = 1;
    EXPECT_TRUE(is_chapter_text(*source, text));
    EXPECT_FALSE(is_chapter_text(*source, timecode));
}

TEST_F(stream_copy, facts_go_along_and_foreign_codec_tags_do_not)
{
    AVStream& from = stream(AVMEDIA_TYPE_AUDIO, AV_CODEC_ID_AAC, MKTAG('m', 'p', '4', 'a'));
    from.disposition = AV_DISPOSITION_FORCED;
    from.time_base = {1, 44100};
    from.id = 5;
    av_dict_set(&from.metadata, "language", "deu", 0);
    av_dict_set(&from.metadata, "handler_name", "Core Media Audio", 0);
    std::uint8_t* const matrix = av_stream_new_side_data(&from, AV_PKT_DATA_DISPLAYMATRIX, 36);
    std::memset(matrix, 7, 36);

    const auto mov = file("mov"), matroska = file("matroska");
    const AVStream* in_mov = media::copy_stream(*mov, from);
    const AVStream* in_matroska = media::copy_stream(*matroska, from);
    ASSERT_TRUE(in_mov != nullptr && in_matroska != nullptr);
    EXPECT_EQ(in_mov->codecpar->codec_tag, MKTAG('m', 'p', '4', 'a'));
    EXPECT_EQ(in_matroska->codecpar->codec_tag, 0u) << "Matroska has other tags";
    EXPECT_EQ(in_mov->disposition, AV_DISPOSITION_FORCED);
    EXPECT_EQ(in_mov->time_base.den, 44100);
    EXPECT_EQ(in_mov->id, 5);
    EXPECT_STREQ(av_dict_get(in_mov->metadata, "language", nullptr, 0)->value, "deu");
    EXPECT_EQ(av_dict_get(in_mov->metadata, "handler_name", nullptr, 0), nullptr);
    const std::uint8_t* const copied = av_stream_get_side_data(in_mov, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    ASSERT_NE(copied, nullptr);
    EXPECT_EQ(copied[35], 7);
}

} // namespace
} // namespace ov1::media

#include "media/clips/stream_copy.h"

#include "media/clips/clip_tags.h"

#include <cstring>

namespace ov1::media
{

std::string kind_name(const AVStream& stream)
{
    if ((stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0)
        return "cover picture";
    const char* name = av_get_media_type_string(stream.codecpar->codec_type);
    return name != nullptr ? name : "stream";
}

std::string stream_name(const AVStream& stream, int number)
{
    std::string name = kind_name(stream) + ' ' + std::to_string(number) + " (";
    char tag[AV_FOURCC_MAX_STRING_SIZE] = {};
    if (stream.codecpar->codec_id == AV_CODEC_ID_NONE && stream.codecpar->codec_tag != 0)
        name += av_fourcc_make_string(tag, stream.codecpar->codec_tag);
    else
        name += avcodec_get_name(stream.codecpar->codec_id);
    if (const AVDictionaryEntry* language = av_dict_get(stream.metadata, "language", nullptr, 0))
        name += std::string(", ") + language->value;
    return name + ')';
}

bool is_timecode(const AVStream& stream) { return stream.codecpar->codec_tag == MKTAG('t', 'm', 'c', 'd'); }

bool is_chapter_text(const AVFormatContext& format, const AVStream& stream)
{
    return format.nb_chapters > 0 && stream.codecpar->codec_type == AVMEDIA_TYPE_DATA &&
           stream.codecpar->codec_tag == MKTAG('t', 'e', 'x', 't');
}

void copy_facts(AVStream& to, const AVStream& from)
{
    for (int i = 0; i < from.nb_side_data; ++i)
        if (std::uint8_t* data = av_stream_new_side_data(&to, from.side_data[i].type, from.side_data[i].size))
            std::memcpy(data, from.side_data[i].data, from.side_data[i].size);
    to.disposition = from.disposition;
    to.avg_frame_rate = from.avg_frame_rate;
    to.r_frame_rate = from.r_frame_rate;
    to.sample_aspect_ratio = from.sample_aspect_ratio;
    to.duration = from.duration;
    to.id = from.id;
    copy_tags(from.metadata, &to.metadata);
}

AVStream* copy_stream(AVFormatContext& output, const AVStream& from)
{
    AVStream* stream = avformat_new_stream(&output, nullptr);
    if (stream == nullptr || avcodec_parameters_copy(stream->codecpar, from.codecpar) < 0)
        return nullptr;
    // A tag of the source's container may mean another codec here, or nothing: the muxer then chooses its own.
    const auto* known = output.oformat->codec_tag;
    const std::uint32_t tag = from.codecpar->codec_tag;
    if (known == nullptr || av_codec_get_id(known, tag) != from.codecpar->codec_id)
        stream->codecpar->codec_tag = 0;
    copy_facts(*stream, from);
    stream->time_base = from.time_base;
    return stream;
}

} // namespace ov1::media

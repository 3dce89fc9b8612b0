#include "media/clips/clip_source.h"

#include "media/base/failures.h"
#include "platform/folder_listing.h"

extern "C"
{
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cmath>

namespace ov1::media
{

namespace
{

/// Degrees clockwise that the display matrix asks for, to the next quarter turn: 0, 90, 180 or 270.
int turn_in(const AVStream& stream)
{
    const std::uint8_t* matrix = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    if (matrix == nullptr)
        return 0;
    const double anticlockwise = av_display_rotation_get(reinterpret_cast<const std::int32_t*>(matrix));
    return std::isnan(anticlockwise) ? 0 : (static_cast<int>(std::lround(-anticlockwise / 90)) * 90 % 360 + 360) % 360;
}

/// Of the duration and the number of frames the file's own are taken first, then what follows from the rest.
clip_info describe(const AVFormatContext& format, const AVStream& stream, const AVFrame& frame)
{
    clip_info info;
    info.width = static_cast<std::size_t>(frame.width);
    info.height = static_cast<std::size_t>(frame.height);
    const AVRational rate = stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
    info.frames_per_second = rate.num > 0 && rate.den > 0 ? av_q2d(rate) : 0;
    if (stream.duration != AV_NOPTS_VALUE)
        info.duration_s = static_cast<double>(stream.duration) * av_q2d(stream.time_base);
    else if (format.duration != AV_NOPTS_VALUE)
        info.duration_s = static_cast<double>(format.duration) / AV_TIME_BASE;
    // Matroska writes the time of the end; other containers write the length.
    const bool ends_at_its_duration = std::string(format.iformat->name).starts_with("matroska");
    if (ends_at_its_duration && format.start_time != AV_NOPTS_VALUE)
        info.duration_s = std::max(0.0, info.duration_s - static_cast<double>(format.start_time) / AV_TIME_BASE);
    info.frames =
        stream.nb_frames > 0
            ? static_cast<std::uint64_t>(stream.nb_frames)
            : static_cast<std::uint64_t>(std::llround(std::max(0.0, info.duration_s * info.frames_per_second)));
    info.turned_by = turn_in(stream);
    const std::string names = format.iformat->name;
    info.container = names.substr(0, names.find(','));
    info.codec = avcodec_get_name(stream.codecpar->codec_id);
    const char* pixels = av_get_pix_fmt_name(static_cast<AVPixelFormat>(frame.format));
    info.pixel_format = pixels != nullptr ? pixels : "";
    return info;
}

} // namespace

result<> clip_source::open(const std::string& path, unsigned int threads)
{
    const libav_messages messages;
    if (is_folder(path))
        return unreadable("is a folder");
    AVFormatContext* opened = nullptr;
    const std::string url = "file:" + path; // so that no name is read as a URL
    const int result = avformat_open_input(&opened, url.c_str(), nullptr, nullptr);
    format.reset(opened);
    if (result == AVERROR(ENOENT))
        return unreadable("no such file");
    if (result == AVERROR_INVALIDDATA)
        return unsupported("is neither a picture nor a clip, or is damaged");
    if (result < 0)
        return unreadable("the file could not be read: " + messages.reason(result));
    if (avformat_find_stream_info(opened, nullptr) < 0)
        return unreadable("the file's streams could not be read");
    picture = av_find_best_stream(opened, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (picture < 0 || (opened->streams[picture]->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0)
        return unsupported("there is no moving picture in it");
    if (const auto opened_decoder = open_decoder(threads, messages); !opened_decoder)
        return opened_decoder.error();
    // Sizes, pixel format and tags of the stream may be missing or wrong: those of the first frame count.
    while (!first && !is_at_end)
        read_more();
    if (!first)
        return unreadable("no frame of the clip could be decoded");
    info = describe(*format, get_picture(), *first);
    return {};
}

result<> clip_source::open_decoder(unsigned int threads, const libav_messages& messages)
{
    const AVStream& stream = get_picture();
    const std::string name = avcodec_get_name(stream.codecpar->codec_id);
    const AVCodec* codec = avcodec_find_decoder(stream.codecpar->codec_id);
    decoder.reset(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (decoder == nullptr || avcodec_parameters_to_context(decoder.get(), stream.codecpar) < 0)
        return unsupported("this build of libav does not read " + name);
    decoder->pkt_timebase = stream.time_base;
    decoder->thread_count = static_cast<int>(threads);
    // Not AV_EF_EXPLODE: a damaged frame is reported and the rest of the clip decoded.
    decoder->err_recognition = AV_EF_CRCCHECK;
    if (const int result = avcodec_open2(decoder.get(), codec, nullptr); result < 0)
        return unreadable(name + " could not be decoded: " + messages.reason(result));
    reports = decoder_report_count();
    return {};
}

bool clip_source::next(clip_item& item)
{
    while (ready.empty() && !is_at_end)
        read_more();
    if (ready.empty())
        return false;
    item = std::move(ready.front());
    ready.pop_front();
    return true;
}

bool clip_source::seek(std::int64_t time)
{
    // Backward: decoding can only begin at a key frame, and the wanted frame may depend on it.
    if (av_seek_frame(format.get(), picture, time, AVSEEK_FLAG_BACKWARD) < 0)
        return false;
    avcodec_flush_buffers(decoder.get());
    ready.clear();
    waiting.clear();
    is_at_end = false;
    has_sought = true;
    return true;
}

void clip_source::read_more()
{
    const libav_messages messages;
    packet_ptr packet(av_packet_alloc());
    const int read = packet != nullptr ? av_read_frame(format.get(), packet.get()) : AVERROR(ENOMEM);
    if (read < 0)
    {
        is_at_end = true;
        // The end of the input makes the decoder return the frames that it still holds.
        avcodec_send_packet(decoder.get(), nullptr);
        receive(messages);
        if (report)
            add_damage(report->time, "a frame near here is damaged: " + report->text);
        if (read != AVERROR_EOF)
            add_damage(last_time, "the file cannot be read to its end: " + messages.reason(read));
        else
            add_missing_frames();
        return;
    }
    if (packet->stream_index != picture)
    {
        ready.push_back({nullptr, std::move(packet), {}});
        return;
    }
    const std::int64_t time = packet->pts != AV_NOPTS_VALUE ? packet->pts : packet->dts;
    ++packets;
    waiting.push_back(time);
    int sent = avcodec_send_packet(decoder.get(), packet.get());
    // The decoder takes no packet while frames wait in it.
    while (sent == AVERROR(EAGAIN))
    {
        receive(messages);
        sent = avcodec_send_packet(decoder.get(), packet.get());
    }
    if (sent < 0)
        add_failed_frame(messages.reason(sent));
    receive(messages);
}

void clip_source::receive(const libav_messages& messages)
{
    for (;;)
    {
        frame_ptr frame(av_frame_alloc());
        const int result = avcodec_receive_frame(decoder.get(), frame.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return;
        if (result >= 0)
            receive_frame(std::move(frame));
        else
            add_failed_frame(messages.reason(result));
    }
}

void clip_source::receive_frame(frame_ptr frame)
{
    frame->pts = frame->best_effort_timestamp;
    // Frames come in the order of display, packets in that of decoding: matched by time.
    std::erase(waiting, frame->pts);
    // Without any time the frame follows the last one; clip_target then moves it to a time of its own.
    if (frame->pts == AV_NOPTS_VALUE)
        frame->pts = last_time;
    last_time = frame->pts;
    if (frame->decode_error_flags != 0 || (frame->flags & AV_FRAME_FLAG_CORRUPT) != 0)
    {
        add_damage(frame->pts, "the frame is damaged");
        reports = decoder_report_count(); // its messages are of the damage that was just added
        report.reset();
    }
    watch_reports();
    if (!first)
        first.reset(av_frame_clone(frame.get()));
    ready.push_back({std::move(frame), nullptr, {}});
}

/// Decoders of intra-only codecs may conceal errors and say so in a message only; decoders of other codecs also report
/// harmless things. A message comes earlier than its frame, by up to the number of decoding threads, and a failure of
/// the same frame may follow it.
void clip_source::watch_reports()
{
    const AVCodecDescriptor* codec = avcodec_descriptor_get(decoder->codec_id);
    if (codec == nullptr || (codec->props & AV_CODEC_PROP_INTRA_ONLY) == 0)
        return;
    if (report && --report->frames_left <= 0)
    {
        add_damage(report->time, "a frame near here is damaged: " + report->text);
        report.reset();
    }
    if (!report && decoder_report_count() != reports)
        report = {last_time, last_decoder_report(), std::max(1, decoder->thread_count)};
    reports = decoder_report_count();
}

/// Frames come, or fail, in the order of their packets.
void clip_source::add_failed_frame(std::string reason)
{
    add_damage(waiting.empty() ? last_time : waiting.front(), "the frame could not be decoded: " + reason);
    if (!waiting.empty())
        waiting.pop_front();
    reports = decoder_report_count();
    report.reset();
}

/// A truncated file ends without an error of the container: only the number in its header tells. After a seek packets
/// were left out, so nothing can be said.
void clip_source::add_missing_frames()
{
    const std::int64_t wanted = get_picture().nb_frames;
    if (!has_sought && wanted > 0 && packets < static_cast<std::uint64_t>(wanted))
        add_damage(last_time, "the file ends " + std::to_string(wanted - static_cast<std::int64_t>(packets)) +
                                  " frames before its clip does");
}

void clip_source::add_damage(std::int64_t time, std::string reason)
{
    ready.push_back({nullptr, nullptr, clip_damage{seconds_of(time), std::move(reason)}});
}

double clip_source::seconds_of(std::int64_t time) const
{
    return time == AV_NOPTS_VALUE ? 0 : static_cast<double>(time) * av_q2d(get_picture().time_base);
}

} // namespace ov1::media

#include "media/clips/clip_target.h"

#include "media/base/failures.h"
#include "media/base/file_sink.h"
#include "media/clips/clip_tags.h"
#include "media/clips/stream_copy.h"

#include <utility>

namespace ov1::media
{

namespace
{

/// Beyond that packets are written ahead of the picture: memory stays limited while the encoder holds back its frames.
constexpr std::size_t most_waiting_bytes = std::size_t{64} << 20;

} // namespace

clip_target::clip_target() = default;
clip_target::~clip_target() = default;

result<> clip_target::create(const clip_source& from, const std::string& path, const clip_request& request)
{
    source = &from;
    return plan.make(from, path, request);
}

/// Metadata, chapters and flags of the file; before its streams are added.
void clip_target::set_head(AVFormatContext& to) const
{
    const AVFormatContext& from = source->get_format();
    copy_tags(from.metadata, &to.metadata);
    copy_chapters(from, to);
    to.strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    to.flags |= AVFMT_FLAG_BITEXACT; // no version of libav in the file
}

result<> clip_target::begin(int descriptor)
{
    if (plan.get_container() == nullptr)
        return {};
    const libav_messages messages;
    AVFormatContext* made = nullptr;
    sink = std::make_unique<file_sink>(descriptor);
    if (avformat_alloc_output_context2(&made, plan.get_container(), nullptr, nullptr) < 0 || sink->get() == nullptr)
        return cannot_write("not enough memory");
    output.reset(made);
    output->pb = sink->get();
    set_head(*output);
    for (std::size_t i = 0; i < plan.get_streams().size(); ++i)
    {
        const AVStream& from = *source->get_format().streams[i];
        AVStream* stream = nullptr;
        if (plan.get_streams()[i].fate == stream_fate::graded)
            stream = plan.add_picture(*output);
        else if (plan.get_streams()[i].fate == stream_fate::copied)
            stream = copy_stream(*output, from);
        places.push_back(stream != nullptr ? stream->index : -1);
    }
    dictionary options;
    const AVDictionaryEntry* tag = nullptr;
    // The newer list of metadata is written only where a name needs it: fewer programs read it.
    if (plan.is_mov())
        while ((tag = av_dict_get(output->metadata, "", tag, AV_DICT_IGNORE_SUFFIX)) != nullptr)
            if (!is_classic_mov_tag(tag->key))
                options.set("movflags", "use_metadata_tags");
    const int code = avformat_write_header(output.get(), &options.entries);
    last_dts.assign(output->nb_streams, AV_NOPTS_VALUE);
    return written_or_failure(code);
}

/// For a result of libav: a failure of the file, where there was one, comes before libav's own text.
result<> clip_target::written_or_failure(int code) const
{
    if (code >= 0)
        return {};
    const std::string reason = sink->reason();
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(code, text, sizeof text);
    return cannot_write(reason.empty() ? "could not be written: " + std::string(text) : reason);
}

result<> clip_target::write_frame(AVFrame& frame)
{
    if (plan.get_container() == nullptr)
        return {};
    const AVRational base = source->get_picture().time_base;
    // Two source times may become one in a coarser time base, and encoders require rising times.
    frame.pts = av_rescale_q(frame.pts, base, plan.get_encoder().time_base);
    if (last_frame != AV_NOPTS_VALUE && frame.pts <= last_frame)
        frame.pts = last_frame + 1;
    last_frame = frame.pts;
    // Not all encoders pass durations on: they are set again on the packets by their time.
    if (frame.pkt_duration > 0)
        durations[frame.pts] = av_rescale_q(frame.pkt_duration, base, plan.get_encoder().time_base);
    frame.pict_type = AV_PICTURE_TYPE_NONE; // the encoder's own choice
    frame.quality = plan.get_encoder().global_quality;
    const libav_messages messages;
    if (const int result = avcodec_send_frame(&plan.get_encoder(), &frame); result < 0)
        return cannot_write(plan.get_codec_name() + " could not be encoded: " + messages.reason(result));
    return write_encoded();
}

/// Writes all packets that the encoder has ready, each after the packets of other streams that come before it.
result<> clip_target::write_encoded()
{
    const packet_ptr packet(av_packet_alloc());
    const int place = places[static_cast<std::size_t>(source->get_picture().index)];
    for (;;)
    {
        const int result = avcodec_receive_packet(&plan.get_encoder(), packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return {};
        if (result < 0)
            return cannot_write(plan.get_codec_name() + " could not be encoded");
        if (const auto known = durations.find(packet->pts); known != durations.end())
        {
            packet->duration = known->second;
            durations.erase(known);
        }
        packet->stream_index = place;
        packet->time_base = plan.get_encoder().time_base;
        if (const auto written = write_waiting(packet.get()); !written)
            return written;
        av_packet_rescale_ts(packet.get(), plan.get_encoder().time_base, output->streams[place]->time_base);
        if (const auto written = write(*packet); !written)
            return written;
    }
}

result<> clip_target::write_packet(packet_ptr packet)
{
    const auto from = static_cast<std::size_t>(packet->stream_index);
    if (plan.get_container() == nullptr || from >= places.size() || places[from] < 0)
        return {};
    packet->time_base = source->get_format().streams[from]->time_base;
    packet->stream_index = places[from];
    waiting_bytes += static_cast<std::size_t>(packet->size);
    waiting.push_back(std::move(packet));
    return waiting_bytes < most_waiting_bytes ? result<>() : write_waiting(nullptr);
}

/// Writes those that are due before a packet of the picture; without one, all.
result<> clip_target::write_waiting(const AVPacket* before)
{
    while (!waiting.empty())
    {
        AVPacket& next = *waiting.front();
        const std::int64_t time = next.dts != AV_NOPTS_VALUE ? next.dts : next.pts;
        // In the order of decoding times, as muxers interleave; packets without a time go at once.
        if (before != nullptr && time != AV_NOPTS_VALUE &&
            av_compare_ts(time, next.time_base, before->dts, before->time_base) > 0)
            return {};
        waiting_bytes -= static_cast<std::size_t>(next.size);
        av_packet_rescale_ts(&next, next.time_base, output->streams[next.stream_index]->time_base);
        const auto written = write(next);
        waiting.pop_front();
        if (!written)
            return written;
    }
    return {};
}

/// Writes one packet, whose times are in the output stream's time base. Missing and falling times are replaced.
result<> clip_target::write(AVPacket& packet)
{
    std::int64_t& last = last_dts[static_cast<std::size_t>(packet.stream_index)];
    if (packet.dts == AV_NOPTS_VALUE)
        packet.dts = packet.pts != AV_NOPTS_VALUE ? packet.pts : last != AV_NOPTS_VALUE ? last + 1 : 0;
    const std::int64_t step = (output->oformat->flags & AVFMT_TS_NONSTRICT) != 0 ? 0 : 1;
    if (last != AV_NOPTS_VALUE && packet.dts < last + step) // muxers require rising times
        packet.dts = last + step;
    if (packet.pts == AV_NOPTS_VALUE || packet.pts < packet.dts)
        packet.pts = packet.dts;
    last = packet.dts;
    // The place in the source file means nothing in this one.
    packet.pos = -1;
    packet.time_base = output->streams[packet.stream_index]->time_base;
    // Muxers may return success although the sink has failed: its error is kept in the context.
    const int code = av_write_frame(output.get(), &packet);
    return written_or_failure(code >= 0 ? output->pb->error : code);
}

result<> clip_target::finish()
{
    if (plan.get_container() == nullptr)
        return {};
    avcodec_send_frame(&plan.get_encoder(), nullptr);
    result<> written = write_encoded();
    if (written)
        written = write_waiting(nullptr);
    if (!written)
        return written;
    const int code = av_write_trailer(output.get());
    // The last bytes reach the file here, so that a full disk is still found.
    avio_flush(output->pb);
    return written_or_failure(code >= 0 ? output->pb->error : code);
}

} // namespace ov1::media

#include "media/clips/clip_target.h"

#include "media/base/failures.h"
#include "media/base/file_sink.h"
#include "media/clips/clip_form.h"
#include "media/clips/clip_tags.h"
#include "media/clips/stream_copy.h"

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace ov1::media
{

namespace
{

constexpr std::size_t most_waiting_bytes = std::size_t{64} << 20;

bool is_mov_family(const AVOutputFormat& container)
{
    const std::string name = container.name;
    return name == "mov" || name == "mp4" || name == "ipod" || name == "3gp" || name == "3g2" || name == "f4v";
}

/// The tags of the output: the source's, unless its samples are of another family.
colour_tags tags_for(const colour_tags& source, const frame_form& from, AVPixelFormat pixels, const AVFrame& frame,
                     const AVCodec* codec)
{
    if (codec != nullptr && codec->id == AV_CODEC_ID_MJPEG) // as ITU-T T.871 has it, whatever is tagged
        return {AVCOL_RANGE_JPEG, AVCOL_SPC_BT470BG, AVCHROMA_LOC_CENTER};
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(pixels);
    const bool to_rgb = (format->flags & AV_PIX_FMT_FLAG_RGB) != 0;
    const bool from_rgb = from.family == colour_family::rgb;
    const bool is_jpeg = std::strncmp(format->name, "yuvj", 4) == 0;
    colour_tags tags = source;
    if (is_jpeg)
        tags.range = AVCOL_RANGE_JPEG;
    if (to_rgb != from_rgb)
    {
        tags.range = to_rgb || is_jpeg ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
        tags.matrix = to_rgb                                ? AVCOL_SPC_RGB
                      : is_large(frame.width, frame.height) ? AVCOL_SPC_BT709
                                                            : AVCOL_SPC_SMPTE170M;
    }
    return tags;
}

AVRational rate_of(const AVStream& stream)
{
    const AVRational rate = stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
    return rate.num > 0 && rate.den > 0 ? rate : AVRational{25, 1};
}

/// The source's time base, so that every frame keeps its time; with codecs and containers of a fixed rate, the rate.
AVRational encoder_time_base(const AVStream& stream, AVCodecID codec, const AVOutputFormat* container)
{
    constexpr int largest_of_mpeg4 = 65535;
    constexpr std::array fixed_rate{"avi", "mxf", "mxf_d10", "mxf_opatom", "gxf", "dv"};
    const bool is_fixed =
        container != nullptr && std::any_of(fixed_rate.begin(), fixed_rate.end(),
                                            [&](const char* name) { return std::strcmp(name, container->name) == 0; });
    const bool counts = is_fixed || codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
                        (codec == AV_CODEC_ID_MPEG4 && stream.time_base.den > largest_of_mpeg4);
    return counts ? av_inv_q(rate_of(stream)) : stream.time_base;
}

} // namespace

clip_target::clip_target() = default;
clip_target::~clip_target() = default;

result<> clip_target::create(const clip_source& from, const std::string& path, const clip_request& request)
{
    const libav_messages messages;
    source = &from;
    result<> done = choose_container(path);
    if (done)
        done = choose_forms(request);
    if (done && container != nullptr)
        done = open_encoder(request);
    if (done && container != nullptr)
        done = plan_streams();
    if (!done)
        return done;
    info = from.get_info();
    info.container = container != nullptr ? container->name : "nothing";
    info.codec = codec.name;
    info.pixel_format = av_get_pix_fmt_name(form.pixels);
    add_warnings();
    return {};
}

result<> clip_target::choose_container(const std::string& path)
{
    if (path == "/dev/null")
        return {};
    container = av_guess_format(nullptr, path.c_str(), nullptr);
    const bool takes_clips =
        container != nullptr && container->video_codec != AV_CODEC_ID_NONE && (container->flags & AVFMT_NOFILE) == 0;
    const bool is_picture = container != nullptr && std::strncmp(container->name, "image2", 6) == 0;
    if (takes_clips && !is_picture)
        return {};
    return unsupported(is_picture ? "a clip is not written as one picture" : "no clip is written under this name",
                       is_picture ? "number its frames, as in shot.%04d.png, or end the name in .mov, .mp4 or .mkv"
                                  : "end it in .mov, .mp4 or .mkv");
}

result<> clip_target::choose_forms(const clip_request& request)
{
    const AVFrame& frame = source->get_first_frame();
    const AVCodecParameters& stream = *source->get_picture().codecpar;
    const colour_tags source_tags = clip_tags(frame, stream, request);
    const auto read = clip_form(frame, source_tags);
    if (!read)
        return read.error();
    source_form = *read;
    if (!can_be_graded(source_form))
        return unsupported("frames of the pixel format " + source->get_info().pixel_format + " are not graded");
    AVPixelFormat pixels = source_form.pixels;
    if (container != nullptr)
    {
        auto chosen_codec = choose_codec(stream, source_form, request);
        if (!chosen_codec)
            return chosen_codec.error();
        codec = std::move(*chosen_codec);
        const auto chosen_pixels = choose_pixels(codec, source_form, request);
        if (!chosen_pixels)
            return chosen_pixels.error();
        pixels = *chosen_pixels;
    }
    else if (!can_be_written(source_form))
        pixels = AV_PIX_FMT_GBRP16;
    tags = tags_for(source_tags, source_form, pixels, frame, codec.encoder);
    const auto written = form_of(pixels, tags, frame.width, frame.height);
    if (!written)
        return written.error();
    form = *written;
    return {};
}

result<> clip_target::open_encoder(const clip_request& request)
{
    const libav_messages messages;
    const AVStream& stream = source->get_picture();
    const AVFrame& frame = source->get_first_frame();
    encoder.reset(avcodec_alloc_context3(codec.encoder));
    if (encoder == nullptr)
        return cannot_write("not enough memory");
    encoder->width = frame.width;
    encoder->height = frame.height;
    encoder->pix_fmt = form.pixels;
    encoder->sample_aspect_ratio =
        frame.sample_aspect_ratio.num > 0 ? frame.sample_aspect_ratio : stream.sample_aspect_ratio;
    encoder->color_range = tags.range;
    encoder->colorspace = tags.matrix;
    encoder->chroma_sample_location = tags.chroma;
    const AVCodecParameters& parameters = *stream.codecpar;
    encoder->color_primaries =
        frame.color_primaries != AVCOL_PRI_UNSPECIFIED ? frame.color_primaries : parameters.color_primaries;
    encoder->color_trc = frame.color_trc != AVCOL_TRC_UNSPECIFIED ? frame.color_trc : parameters.color_trc;
    encoder->time_base = encoder_time_base(stream, codec.encoder->id, container);
    encoder->framerate = rate_of(stream);
    encoder->field_order = stream.codecpar->field_order;
    encoder->thread_count = static_cast<int>(request.threads);
    if (frame.interlaced_frame != 0 && codec.encoder->id != AV_CODEC_ID_DNXHD)
        encoder->flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
    if ((container->flags & AVFMT_GLOBALHEADER) != 0)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    if (stream.codecpar->codec_id == codec.encoder->id && stream.codecpar->codec_tag == MKTAG('h', 'v', 'c', '1') &&
        is_mov_family(*container))
        encoder->codec_tag = stream.codecpar->codec_tag;
    if (codec.quantizer)
    {
        encoder->flags |= AV_CODEC_FLAG_QSCALE;
        encoder->global_quality = *codec.quantizer * FF_QP2LAMBDA;
    }
    dictionary options;
    for (const auto& [name, value] : codec.options)
        options.set(name, value);
    const int result = avcodec_open2(encoder.get(), codec.encoder, &options.entries);
    if (result < 0)
        return unsupported(codec.name + " does not take this clip: " + messages.reason(result),
                           "ask for another with --codec, or other samples with --pix-fmt");
    if (const std::string left = options.first_left(); !left.empty())
        return unsupported(codec.name + " has no option named " + left);
    return {};
}

AVStream* clip_target::add_picture(AVFormatContext& to) const
{
    AVStream* stream = avformat_new_stream(&to, nullptr);
    if (stream == nullptr || avcodec_parameters_from_context(stream->codecpar, encoder.get()) < 0)
        return nullptr;
    copy_facts(*stream, source->get_picture());
    stream->time_base = encoder->time_base;
    stream->sample_aspect_ratio = encoder->sample_aspect_ratio;
    return stream;
}

/// Tried by writing a header for the picture and the stream to memory.
bool clip_target::can_hold(const AVStream* other) const
{
    const libav_messages messages;
    AVFormatContext* made = nullptr;
    if (avformat_alloc_output_context2(&made, container, nullptr, nullptr) < 0)
        return false;
    const output_ptr trial(made);
    trial->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    if (add_picture(*trial) == nullptr || (other != nullptr && copy_stream(*trial, *other) == nullptr))
        return false;
    if (avio_open_dyn_buf(&trial->pb) < 0)
        return false;
    const int result = avformat_write_header(trial.get(), nullptr);
    if (result >= 0)
        av_write_trailer(trial.get());
    std::uint8_t* bytes = nullptr;
    avio_close_dyn_buf(trial->pb, &bytes);
    av_free(bytes);
    return result >= 0;
}

result<> clip_target::plan_streams()
{
    if (!can_hold(nullptr))
        return unsupported(std::string(container->name) + " cannot hold this kind of " + codec.name,
                           "end the name in .mov or .mkv, or ask for another with --codec");
    const AVFormatContext& format = source->get_format();
    std::map<std::string, int> numbers;
    for (unsigned int i = 0; i < format.nb_streams; ++i)
    {
        const AVStream& stream = *format.streams[i];
        const std::string name = stream_name(stream, ++numbers[kind_name(stream)]);
        streams.push_back(plan_of(stream, name));
    }
    return {};
}

clip_stream clip_target::plan_of(const AVStream& stream, const std::string& name) const
{
    if (&stream == &source->get_picture())
        return {name, stream_fate::graded, codec.name + ", " + av_get_pix_fmt_name(form.pixels)};
    if (is_timecode(stream))
        return {name, stream_fate::remade, is_mov_family(*container) ? "" : "as metadata"};
    if (is_chapter_text(source->get_format(), stream))
        return {name, stream_fate::remade, "as chapters"};
    if (!can_hold(&stream))
        return {name, stream_fate::left_out, std::string(container->name) + " cannot hold it"};
    const bool is_picture =
        stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
    return {name, stream_fate::copied, is_picture ? "ungraded" : ""};
}

void clip_target::add_warnings()
{
    for (const clip_stream& stream : streams)
        if (stream.fate == stream_fate::left_out)
            warnings.push_back(stream.name + " is left out: " + stream.note);
        else if (stream.fate == stream_fate::copied && !stream.note.empty())
            warnings.push_back(stream.name + " is copied " + stream.note);
    if (container == nullptr)
        return;
    if (const std::string lost = lost_samples(source_form, form); !lost.empty())
        warnings.push_back(info.pixel_format + " holds no " + lost);
    if (info.turned_by != 0 && !is_mov_family(*container))
        warnings.push_back(std::string(container->name) +
                           " is written without the note that the picture is turned by " +
                           std::to_string(info.turned_by) + " degrees");
    const AVColorTransferCharacteristic transfer = encoder->color_trc;
    if (transfer == AVCOL_TRC_SMPTE2084 || transfer == AVCOL_TRC_ARIB_STD_B67)
        warnings.push_back(std::string(transfer == AVCOL_TRC_SMPTE2084 ? "PQ" : "HLG") +
                           " material is graded on its code values");
}

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
    if (container == nullptr)
        return {};
    const libav_messages messages;
    AVFormatContext* made = nullptr;
    sink = std::make_unique<file_sink>(descriptor);
    if (avformat_alloc_output_context2(&made, container, nullptr, nullptr) < 0 || sink->get() == nullptr)
        return cannot_write("not enough memory");
    output.reset(made);
    output->pb = sink->get();
    set_head(*output);
    for (std::size_t i = 0; i < streams.size(); ++i)
    {
        const AVStream& from = *source->get_format().streams[i];
        AVStream* stream = nullptr;
        if (streams[i].fate == stream_fate::graded)
            stream = add_picture(*output);
        else if (streams[i].fate == stream_fate::copied)
            stream = copy_stream(*output, from);
        places.push_back(stream != nullptr ? stream->index : -1);
    }
    dictionary options;
    const AVDictionaryEntry* tag = nullptr;
    if (is_mov_family(*container))
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
    if (container == nullptr)
        return {};
    const AVRational base = source->get_picture().time_base;
    frame.pts = av_rescale_q(frame.pts, base, encoder->time_base);
    if (last_frame != AV_NOPTS_VALUE && frame.pts <= last_frame)
        frame.pts = last_frame + 1;
    last_frame = frame.pts;
    if (frame.pkt_duration > 0)
        durations[frame.pts] = av_rescale_q(frame.pkt_duration, base, encoder->time_base);
    frame.pict_type = AV_PICTURE_TYPE_NONE; // the encoder's own choice
    frame.quality = encoder->global_quality;
    const libav_messages messages;
    if (const int result = avcodec_send_frame(encoder.get(), &frame); result < 0)
        return cannot_write(codec.name + " could not be encoded: " + messages.reason(result));
    return write_encoded();
}

result<> clip_target::write_encoded()
{
    const packet_ptr packet(av_packet_alloc());
    const int place = places[static_cast<std::size_t>(source->get_picture().index)];
    for (;;)
    {
        const int result = avcodec_receive_packet(encoder.get(), packet.get());
        if (result == AVERROR(EAGAIN) || result == AVERROR_EOF)
            return {};
        if (result < 0)
            return cannot_write(codec.name + " could not be encoded");
        if (const auto known = durations.find(packet->pts); known != durations.end())
        {
            packet->duration = known->second;
            durations.erase(known);
        }
        packet->stream_index = place;
        packet->time_base = encoder->time_base;
        if (const auto written = write_waiting(packet.get()); !written)
            return written;
        av_packet_rescale_ts(packet.get(), encoder->time_base, output->streams[place]->time_base);
        if (const auto written = write(*packet); !written)
            return written;
    }
}

result<> clip_target::write_packet(packet_ptr packet)
{
    const auto from = static_cast<std::size_t>(packet->stream_index);
    if (container == nullptr || from >= places.size() || places[from] < 0)
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

result<> clip_target::write(AVPacket& packet)
{
    std::int64_t& last = last_dts[static_cast<std::size_t>(packet.stream_index)];
    if (packet.dts == AV_NOPTS_VALUE)
        packet.dts = packet.pts != AV_NOPTS_VALUE ? packet.pts : last != AV_NOPTS_VALUE ? last + 1 : 0;
    const std::int64_t step = (container->flags & AVFMT_TS_NONSTRICT) != 0 ? 0 : 1;
    if (last != AV_NOPTS_VALUE && packet.dts < last + step) // muxers require rising times
        packet.dts = last + step;
    if (packet.pts == AV_NOPTS_VALUE || packet.pts < packet.dts)
        packet.pts = packet.dts;
    last = packet.dts;
    packet.pos = -1;
    packet.time_base = output->streams[packet.stream_index]->time_base;
    const int code = av_write_frame(output.get(), &packet);
    return written_or_failure(code >= 0 ? output->pb->error : code);
}

result<> clip_target::finish()
{
    if (container == nullptr)
        return {};
    avcodec_send_frame(encoder.get(), nullptr);
    result<> written = write_encoded();
    if (written)
        written = write_waiting(nullptr);
    if (!written)
        return written;
    const int code = av_write_trailer(output.get());
    avio_flush(output->pb);
    return written_or_failure(code >= 0 ? output->pb->error : code);
}

} // namespace ov1::media

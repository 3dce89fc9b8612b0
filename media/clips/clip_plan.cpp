#include "media/clips/clip_plan.h"

#include "media/base/failures.h"
#include "media/clips/clip_form.h"
#include "media/clips/stream_copy.h"

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <array>
#include <cstring>
#include <map>
#include <utility>

namespace ov1::media
{

namespace
{

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

/// The mean rate where it is known, else the container's guess, else 25.
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
    // MPEG-1 and MPEG-2 allow a few fixed rates only, and MPEG-4 stores the time base in 16 bits.
    const bool counts = is_fixed || codec == AV_CODEC_ID_MPEG1VIDEO || codec == AV_CODEC_ID_MPEG2VIDEO ||
                        (codec == AV_CODEC_ID_MPEG4 && stream.time_base.den > largest_of_mpeg4);
    return counts ? av_inv_q(rate_of(stream)) : stream.time_base;
}

} // namespace

bool clip_plan::is_mov() const
{
    const std::string name = container != nullptr ? container->name : "";
    return name == "mov" || name == "mp4" || name == "ipod" || name == "3gp" || name == "3g2" || name == "f4v";
}

result<> clip_plan::make(const clip_source& from, const std::string& path, const clip_request& request)
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

result<> clip_plan::choose_container(const std::string& path)
{
    if (path == "/dev/null")
        return {};
    container = av_guess_format(nullptr, path.c_str(), nullptr);
    // Formats without a file (AVFMT_NOFILE) are devices and networks; those of image2 write one file for each frame.
    const bool takes_clips =
        container != nullptr && container->video_codec != AV_CODEC_ID_NONE && (container->flags & AVFMT_NOFILE) == 0;
    const bool is_picture = container != nullptr && std::strncmp(container->name, "image2", 6) == 0;
    if (takes_clips && !is_picture)
        return {};
    return unsupported(is_picture ? "a clip is not written as one picture" : "no clip is written under this name",
                       is_picture ? "number its frames, as in shot.%04d.png, or end the name in .mov, .mp4 or .mkv"
                                  : "end it in .mov, .mp4 or .mkv");
}

result<> clip_plan::choose_forms(const clip_request& request)
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
    // Discarded frames are graded all the same, so that a benchmark measures the grade: any form will do.
    else if (!can_be_written(source_form))
        pixels = AV_PIX_FMT_GBRP16;
    tags = tags_for(source_tags, source_form, pixels, frame, codec.encoder);
    const auto written = form_of(pixels, tags, frame.width, frame.height);
    if (!written)
        return written.error();
    form = *written;
    return {};
}

result<> clip_plan::open_encoder(const clip_request& request)
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
    // Codes without a meaning can stand beside RGB and grey, where nothing depends on them: they are dropped.
    encoder->colorspace = tags.matrix < AVCOL_SPC_NB ? static_cast<AVColorSpace>(tags.matrix) : AVCOL_SPC_UNSPECIFIED;
    encoder->chroma_sample_location = tags.chroma;
    const AVCodecParameters& parameters = *stream.codecpar;
    // The frame's own tags first, then the stream's, as for range and matrix (clip_form.h).
    encoder->color_primaries =
        frame.color_primaries != AVCOL_PRI_UNSPECIFIED ? frame.color_primaries : parameters.color_primaries;
    encoder->color_trc = frame.color_trc != AVCOL_TRC_UNSPECIFIED ? frame.color_trc : parameters.color_trc;
    encoder->time_base = encoder_time_base(stream, codec.encoder->id, container);
    encoder->framerate = rate_of(stream);
    encoder->field_order = stream.codecpar->field_order;
    encoder->thread_count = static_cast<int>(request.threads);
    // DNxHR refuses interlaced coding.
    if (frame.interlaced_frame != 0 && codec.encoder->id != AV_CODEC_ID_DNXHD)
        encoder->flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
    // Such containers store the codec's headers once, ahead of the packets.
    if ((container->flags & AVFMT_GLOBALHEADER) != 0)
        encoder->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    // 'hvc1' and 'hev1' are the same codec in MP4, but some players open only the first: keep it.
    if (stream.codecpar->codec_id == codec.encoder->id && stream.codecpar->codec_tag == MKTAG('h', 'v', 'c', '1') &&
        is_mov())
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
    // libav ignores options that it does not know; a request must not be skipped without a word.
    if (const std::string left = options.first_left(); !left.empty())
        return unsupported(codec.name + " has no option named " + left);
    return {};
}

AVStream* clip_plan::add_picture(AVFormatContext& to) const
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
bool clip_plan::can_hold(const AVStream* other) const
{
    const libav_messages messages;
    AVFormatContext* made = nullptr;
    if (avformat_alloc_output_context2(&made, container, nullptr, nullptr) < 0)
        return false;
    const output_ptr trial(made);
    // As the real output is written: some codecs count as experimental in a container.
    trial->strict_std_compliance = FF_COMPLIANCE_EXPERIMENTAL;
    if (add_picture(*trial) == nullptr || (other != nullptr && copy_stream(*trial, *other) == nullptr))
        return false;
    if (avio_open_dyn_buf(&trial->pb) < 0)
        return false;
    const int result = avformat_write_header(trial.get(), nullptr);
    // Frees what the header has allocated.
    if (result >= 0)
        av_write_trailer(trial.get());
    std::uint8_t* bytes = nullptr;
    avio_close_dyn_buf(trial->pb, &bytes);
    av_free(bytes);
    return result >= 0;
}

result<> clip_plan::plan_streams()
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

/// What becomes of one stream, and a note for the user.
clip_stream clip_plan::plan_of(const AVStream& stream, const std::string& name) const
{
    if (&stream == &source->get_picture())
        return {name, stream_fate::graded, codec.name + ", " + av_get_pix_fmt_name(form.pixels)};
    // Timecode and chapter tracks are written by the muxer from metadata: a copy would be there twice.
    if (is_timecode(stream))
        return {name, stream_fate::remade, is_mov() ? "" : "as metadata"};
    if (is_chapter_text(source->get_format(), stream))
        return {name, stream_fate::remade, "as chapters"};
    if (!can_hold(&stream))
        return {name, stream_fate::left_out, std::string(container->name) + " cannot hold it"};
    const bool is_picture =
        stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO && (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) == 0;
    return {name, stream_fate::copied, is_picture ? "ungraded" : ""};
}

/// First one line for each stream that needs it, then what holds for the picture.
void clip_plan::add_warnings()
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
    if (info.turned_by != 0 && !is_mov())
        warnings.push_back(std::string(container->name) +
                           " is written without the note that the picture is turned by " +
                           std::to_string(info.turned_by) + " degrees");
    const AVColorTransferCharacteristic transfer = encoder->color_trc;
    if (transfer == AVCOL_TRC_SMPTE2084 || transfer == AVCOL_TRC_ARIB_STD_B67)
        warnings.push_back(std::string(transfer == AVCOL_TRC_SMPTE2084 ? "PQ" : "HLG") +
                           " material is graded on its code values");
}

} // namespace ov1::media

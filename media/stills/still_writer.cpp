#include "media/stills/still_writer.h"

#include "media/base/failures.h"
#include "media/base/libav.h"
#include "media/samples/frame_writer.h"
#include "media/stills/encoded_fixes.h"
#include "media/stills/jpeg_tables.h"
#include "media/stills/output_format.h"

#include <algorithm>
#include <cstring>

namespace ov1::media
{

static_assert(still_writer::row_multiple == frame_writer::row_multiple);

namespace
{

constexpr int usual_quality = 95;           // of JPEG: losses are hard to see
constexpr std::size_t largest_side = 65500; // of JPEG, whose sizes have 16 bits

/// How the format stores alpha, where it does.
alpha_kind alpha_in(still_format format, const still_info& source)
{
    switch (format)
    {
    case still_format::png: // by definition of each format; TIFF says it in a tag, DPX does not say
        return alpha_kind::straight;
    case still_format::exr:
        return alpha_kind::premultiplied;
    default:
        return source.alpha;
    }
}

/// PQ and HLG are never converted: they are graded on their code values.
transfer transfer_in(still_format format, const still_info& source, transfer_choice choice)
{
    if (choice == transfer_choice::linear)
        return transfer::linear;
    if (choice == transfer_choice::none || source.transfer == transfer::pq || source.transfer == transfer::hlg)
        return source.transfer;
    const bool same_format = format == source.format;
    const bool stays_linear = source.transfer == transfer::linear && same_format;
    return format == still_format::exr || stays_linear ? transfer::linear : transfer::display;
}

/// Whether a profile describes RGB: one of grey or of inks cannot stand in a file of ours.
bool is_rgb_profile(const std::vector<std::uint8_t>& icc)
{
    constexpr std::size_t color_space_at = 16; // ICC.1, profile header
    return icc.size() >= color_space_at + 4 && std::memcmp(icc.data() + color_space_at, "RGB ", 4) == 0;
}

/// One line for the user, such as "JPEG is written without alpha"; empty if nothing is lost.
std::string what_is_left_out(const still_info& source, const still_info& written)
{
    std::vector<std::string> parts;
    if (source.alpha != alpha_kind::none && written.alpha == alpha_kind::none)
        parts.emplace_back("alpha");
    if (!source.icc.empty() && written.icc.empty())
        parts.emplace_back(is_rgb_profile(source.icc) ? "the colour profile" : "the colour profile, which is not RGB");
    if (source.has_exif)
        parts.emplace_back("the camera's data (Exif)");
    const bool untagged = written.png_color.empty();
    if (untagged && (written.transfer == transfer::pq || written.transfer == transfer::hlg))
        parts.emplace_back(written.transfer == transfer::pq ? "the PQ tag" : "the HLG tag");
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? written.format_name + " is written without " : ", ") + part;
    if (source.orientation != 1)
        text += std::string(text.empty() ? "" : "; ") + "the orientation was applied to the pixels";
    return text;
}

result<> check_request(still_format format, const still_info& source, const write_request& request)
{
    if (request.quality && format != still_format::jpeg)
        return unsupported(std::string(name_of(format)) + " is lossless and has no quality");
    if (request.quality && (*request.quality < 1 || *request.quality > 100))
        return unsupported("the quality is not within 1..100");
    if (format == still_format::jpeg && std::max(source.width, source.height) > largest_side)
        return unsupported("JPEG holds at most 65500 pixels a side", "write PNG, TIFF or EXR");
    return {};
}

/// The context owns the tables.
void set_jpeg_quality(AVCodecContext& context, int quality)
{
    const jpeg_tables tables = jpeg_tables_of(quality);
    const auto copied = [](const jpeg_table& table)
    {
        auto* copy = static_cast<std::uint16_t*>(av_malloc(sizeof table));
        if (copy != nullptr)
            std::copy(table.begin(), table.end(), copy);
        return copy;
    };
    context.intra_matrix = copied(tables.luma);
    context.chroma_intra_matrix = copied(tables.chroma);
    constexpr int unscaled = 8; // the quantizer at which libav takes the tables as they are
    context.flags |= AV_CODEC_FLAG_QSCALE;
    context.global_quality = unscaled * FF_QP2LAMBDA;
}

/// Our own first: the user's options override them.
void set_options(dictionary& options, const still_info& info, const write_request& request)
{
    if (info.format == still_format::png)
        options.set("pred", "up");
    if (info.format == still_format::tiff)
        options.set("compression_algo", "deflate");
    if (info.format == still_format::exr)
    {
        options.set("compression", "zip16");
        options.set("format", std::string(name_of(info.depth)));
    }
    for (const auto& [name, value] : request.options)
        options.set(name, value);
}

result<codec_ptr> open_encoder(const AVFrame& frame, const still_info& info, const write_request& request,
                               const libav_messages& messages)
{
    const AVCodec* codec = avcodec_find_encoder(codec_of(info.format));
    codec_ptr context(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (context == nullptr)
        return unsupported("this build of libav does not write " + info.format_name);
    context->width = frame.width;
    context->height = frame.height;
    context->pix_fmt = static_cast<AVPixelFormat>(frame.format);
    context->color_range = frame.color_range;
    context->colorspace = frame.colorspace;
    context->time_base = {1, 1};
    // The bytes must not depend on the number of processors.
    context->thread_count = 1;
    context->flags |= AV_CODEC_FLAG_BITEXACT; // no version of libav in the file
    if (info.format == still_format::jpeg)
        set_jpeg_quality(*context, request.quality.value_or(usual_quality));
    dictionary options;
    set_options(options, info, request);
    if (const int result = avcodec_open2(context.get(), codec, &options.entries); result < 0)
        return cannot_write(info.format_name + " could not be encoded: " + messages.reason(result));
    if (const std::string left = options.first_left(); !left.empty())
        return unsupported(info.format_name + " has no option named " + left);
    return context;
}

} // namespace

still_writer::still_writer() = default;
still_writer::~still_writer() = default;
still_writer::still_writer(still_writer&&) noexcept = default;
still_writer& still_writer::operator=(still_writer&&) noexcept = default;

void still_writer::frame_deleter::operator()(AVFrame* f) const { av_frame_free(&f); }

result<> still_writer::create(const std::string& path, const still_info& source, const write_request& request)
{
    const auto format = format_of_path(path);
    if (!format)
        return format.error();
    if (const auto checked = check_request(*format, source, request); !checked)
        return checked.error();
    const auto chosen = choose_layout(*format, source, {request.depth, request.pixel_format});
    if (!chosen)
        return chosen.error();
    const output_layout& layout = *chosen;
    still_info info = source;
    info.format = *format;
    info.format_name = name_of(info.format);
    info.depth = layout.depth;
    info.gray = false;
    info.alpha =
        layout.has_alpha && source.alpha != alpha_kind::none ? alpha_in(info.format, source) : alpha_kind::none;
    info.transfer = transfer_in(info.format, source, request.transfer);
    info.orientation = 1;
    info.has_exif = false;
    // Colour chunks of a PNG tag its transfer: they are kept only where it is the same.
    if (info.format != source.format || info.transfer != source.transfer)
        info.png_color.clear();
    // Output is always RGB, so a profile of grey or inks would not fit it.
    if (!holds_icc(info.format) || !is_rgb_profile(source.icc))
        info.icc.clear();

    frame_ptr made(av_frame_alloc());
    if (made == nullptr)
        return cannot_write("not enough memory");
    made->format = layout.pixels;
    made->width = static_cast<int>(info.width);
    made->height = static_cast<int>(info.height);
    if (av_frame_get_buffer(made.get(), 0) < 0)
        return cannot_write("not enough memory for the picture");
    // YCbCr is JPEG's alone: ITU-T T.871.
    const auto form =
        form_of(layout.pixels, {AVCOL_RANGE_JPEG, AVCOL_SPC_BT470BG, AVCHROMA_LOC_CENTER}, made->width, made->height);
    if (!form)
        return form.error();
    frame.reset(made.release());
    rows = std::make_unique<frame_writer>(*frame, *form, info.depth == depth::half);
    left_out = what_is_left_out(source, info);
    description = std::move(info);
    asked = request;
    return {};
}

void still_writer::write_rows(std::size_t first, std::size_t count, const argb_float* in)
{
    rows->write(first, count, in);
}

result<std::vector<std::uint8_t>> still_writer::finish()
{
    const libav_messages messages;
    if (description.format == still_format::jpeg)
    {
        frame->color_range = AVCOL_RANGE_JPEG;
        frame->colorspace = AVCOL_SPC_BT470BG;
    }
    if (description.transfer == transfer::linear && description.png_color.empty())
        frame->color_trc = AVCOL_TRC_LINEAR; // PNG: a gAMA chunk
    if (!description.icc.empty())
        if (AVFrameSideData* icc =
                av_frame_new_side_data(frame.get(), AV_FRAME_DATA_ICC_PROFILE, description.icc.size()))
            std::copy(description.icc.begin(), description.icc.end(), icc->data);

    auto opened = open_encoder(*frame, description, asked, messages);
    if (!opened)
        return opened.error();
    const codec_ptr context = std::move(*opened);
    frame->quality = context->global_quality;
    frame->pts = 0;
    const packet_ptr packet(av_packet_alloc());
    int result = packet != nullptr ? avcodec_send_frame(context.get(), frame.get()) : AVERROR(ENOMEM);
    if (result >= 0)
        result = avcodec_send_frame(context.get(), nullptr);
    if (result >= 0)
        result = avcodec_receive_packet(context.get(), packet.get());
    if (result < 0)
        return cannot_write(description.format_name + " could not be encoded: " + messages.reason(result));
    std::vector<std::uint8_t> encoded(packet->data, packet->data + packet->size);
    fix_encoded(encoded, description);
    // The pixels are not needed any more, and a caller may keep the writer.
    rows.reset();
    frame.reset();
    return encoded;
}

} // namespace ov1::media

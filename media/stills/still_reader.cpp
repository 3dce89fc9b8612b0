#include "media/stills/still_reader.h"

#include "media/base/failures.h"
#include "media/base/libav.h"
#include "media/base/whole_file.h"
#include "media/samples/frame_reader.h"
#include "media/stills/picture_kind.h"

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace ov1::media
{

namespace
{

/// Runs a decoder's jobs as libav would, and keeps the failures that EXR's passes over.
struct job_watch
{
    decltype(AVCodecContext::execute2) run = nullptr;
    bool failed = false;

    static int execute(AVCodecContext* context, int (*job)(AVCodecContext*, void*, int, int), void* data, int* results,
                       int count)
    {
        auto& watch = *static_cast<job_watch*>(context->opaque);
        // The decoder may pass no room for results: then failures would be lost.
        std::vector<int> own(static_cast<std::size_t>(count));
        const int result = watch.run(context, job, data, own.data(), count);
        watch.failed = watch.failed || std::any_of(own.begin(), own.end(), [](int r) { return r < 0; });
        if (results != nullptr)
            std::copy(own.begin(), own.end(), results);
        return result;
    }

    void attach(AVCodecContext& context)
    {
        run = context.execute2;
        context.opaque = this;
        context.execute2 = execute;
    }
};

/// Opens a decoder that refuses damage rather than hiding it. That of TIFF would refuse harmless tags as well: it is
/// left to report damage. Null when the decoder is not there.
codec_ptr open_decoder(AVCodecID id)
{
    const AVCodec* codec = avcodec_find_decoder(id);
    codec_ptr context(codec != nullptr ? avcodec_alloc_context3(codec) : nullptr);
    if (context == nullptr)
        return nullptr;
    context->err_recognition = AV_EF_CRCCHECK | AV_EF_BITSTREAM | AV_EF_BUFFER;
    if (id != AV_CODEC_ID_TIFF)
        context->err_recognition |= AV_EF_EXPLODE;
    context->thread_type = FF_THREAD_SLICE; // whole-frame threads only delay a single picture
    context->thread_count = 0;
    return avcodec_open2(context.get(), codec, nullptr) == 0 ? std::move(context) : nullptr;
}

/// A packet that owns the file's bytes: libav would copy what nobody owns. Null without memory.
packet_ptr packet_of(whole_file& file)
{
    packet_ptr packet(av_packet_alloc());
    if (packet == nullptr)
        return nullptr;
    const std::size_t size = file.bytes().size();
    std::uint8_t* const data = file.release();
    packet->buf = av_buffer_create(
        data, size, [](void*, std::uint8_t* bytes) { delete[] bytes; }, nullptr, AV_BUFFER_FLAG_READONLY);
    if (packet->buf == nullptr)
    {
        delete[] data;
        return nullptr;
    }
    packet->data = data;
    packet->size = static_cast<int>(size);
    return packet;
}

/// Uses the file up.
result<frame_ptr> decode(const picture_kind& kind, whole_file& file)
{
    const std::string name(kind.name);
    const libav_messages messages;
    const codec_ptr context = open_decoder(kind.codec);
    if (context == nullptr)
        return unsupported("this build of libav does not read " + name);
    job_watch jobs;
    // After opening, which sets execute2.
    jobs.attach(*context);
    const packet_ptr packet = packet_of(file);
    frame_ptr frame(av_frame_alloc());
    if (packet == nullptr || frame == nullptr)
        return unreadable("not enough memory");
    int result = avcodec_send_packet(context.get(), packet.get());
    if (result >= 0)
        result = avcodec_send_packet(context.get(), nullptr);
    if (result >= 0)
        result = avcodec_receive_frame(context.get(), frame.get());
    if (result == AVERROR_PATCHWELCOME || result == AVERROR(ENOSYS))
        return unsupported("this kind of " + name + " is not read: " + messages.reason(result));
    // TIFF's decoder and EXR's jobs report damage and still return a picture.
    const bool reported = jobs.failed || (kind.codec == AV_CODEC_ID_TIFF && messages.any());
    if (result >= 0 && reported)
        result = AVERROR_INVALIDDATA;
    if (result < 0 || frame->decode_error_flags != 0 || (frame->flags & AV_FRAME_FLAG_CORRUPT) != 0)
        return unreadable("the " + name + " could not be decoded: " + messages.reason(result));
    return frame;
}

/// The smallest of our depths that holds every component.
depth depth_of(const AVPixFmtDescriptor& format)
{
    if ((format.flags & AV_PIX_FMT_FLAG_FLOAT) != 0)
        return depth::full_float;
    int bits = 0;
    for (int i = 0; i < format.nb_components; ++i)
        bits = std::max(bits, format.comp[i].depth);
    return bits <= 8 ? depth::u8 : bits <= 10 ? depth::u10 : bits <= 12 ? depth::u12 : depth::u16;
}

/// A palette has room for alpha; most say 255 throughout.
bool palette_has_alpha(const AVFrame& frame)
{
    for (std::size_t i = 0; i < 256; ++i)
    {
        std::uint32_t color;
        std::memcpy(&color, frame.data[1] + 4 * i, sizeof color);
        if (color >> 24 != 255)
            return true;
    }
    return false;
}

bool has_alpha(const AVFrame& frame, const AVPixFmtDescriptor& format)
{
    if ((format.flags & AV_PIX_FMT_FLAG_PAL) != 0)
        return palette_has_alpha(frame);
    return (format.flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
}

/// The file's header first, then libav's tag; DPX files are often tagged wrongly, so their tag is not used.
transfer transfer_of(const AVFrame& frame, const picture_kind& kind, const picture_facts& facts)
{
    if (facts.transfer)
        return *facts.transfer;
    if (kind.format == still_format::dpx)
        return transfer::display;
    switch (frame.color_trc)
    {
    case AVCOL_TRC_SMPTE2084:
        return transfer::pq;
    case AVCOL_TRC_ARIB_STD_B67:
        return transfer::hlg;
    case AVCOL_TRC_LINEAR:
        return transfer::linear;
    default:
        return transfer::display;
    }
}

/// From our own reading of the header where there is one; else libav's metadata.
unsigned orientation_of(const AVFrame& frame, const picture_kind& kind, const picture_facts& facts)
{
    if (kind.facts != nullptr)
        return facts.orientation;
    const AVDictionaryEntry* entry = av_dict_get(frame.metadata, "Orientation", nullptr, 0);
    const long value = entry != nullptr ? std::strtol(entry->value, nullptr, 10) : 1;
    return value >= 1 && value <= 8 ? static_cast<unsigned>(value) : 1;
}

still_info describe(const AVFrame& frame, const picture_kind& kind, const picture_facts& facts)
{
    const AVPixFmtDescriptor& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const bool palette = (format.flags & AV_PIX_FMT_FLAG_PAL) != 0;
    still_info info;
    info.depth = facts.half_float ? depth::half : depth_of(format);
    info.gray = format.nb_components < 3 && !palette;
    if (has_alpha(frame, format))
        info.alpha = facts.premultiplied ? alpha_kind::premultiplied : alpha_kind::straight;
    info.transfer = transfer_of(frame, kind, facts);
    info.format = kind.format;
    info.format_name = kind.name;
    info.orientation = orientation_of(frame, kind, facts);
    info.has_exif = facts.has_exif;
    info.png_color = facts.png_color;
    info.dpx_transfer = facts.dpx_transfer;
    info.width = static_cast<std::size_t>(frame.width);
    info.height = static_cast<std::size_t>(frame.height);
    if (turn_of(info.orientation).swap_axes)
        std::swap(info.width, info.height);
    if (const AVFrameSideData* icc = av_frame_get_side_data(&frame, AV_FRAME_DATA_ICC_PROFILE))
        info.icc.assign(icc->data, icc->data + icc->size);
    return info;
}

} // namespace

still_reader::still_reader() = default;
still_reader::~still_reader() = default;
still_reader::still_reader(still_reader&&) noexcept = default;
still_reader& still_reader::operator=(still_reader&&) noexcept = default;

result<> still_reader::open(const std::string& path)
{
    auto file = whole_file::read(path);
    if (!file)
        return file.error();
    const auto found = kind_of(file->bytes(), path);
    if (!found)
        return found.error();
    const picture_kind& kind = **found;
    const std::string name(kind.name);
    picture_facts facts = kind.facts != nullptr ? kind.facts(file->bytes()) : picture_facts{};
    // Before decoding: libav would return such pictures with wrong colours, and no error.
    if (!facts.refusal.empty())
        return unsupported("this " + name + " is not read: " + facts.refusal, "save it as a plain RGB picture");
    if (facts.truncated)
        return unreadable("the " + name + " ends before its picture does");
    auto decoded = decode(kind, *file);
    if (!decoded)
        return decoded.error();
    const AVFrame& picture = **decoded;
    const auto form = form_of(static_cast<AVPixelFormat>(picture.format), still_tags(picture, facts.full_range),
                              picture.width, picture.height);
    if (!form)
        return unsupported("this " + name + " is not read: " + form.error().reason);
    // From here on nothing fails, so a former picture is replaced as a whole.
    description = describe(picture, kind, facts);
    notes = std::move(facts.warnings);
    frame = std::make_unique<frame_reader>(std::move(*decoded), *form);
    return {};
}

void still_reader::take(std::unique_ptr<frame_reader> new_frame, still_info known)
{
    frame = std::move(new_frame);
    description = std::move(known);
    notes.clear();
}

void still_reader::read_rows(std::size_t first, std::size_t count, argb_float* out) const
{
    const turn upright = turn_of(description.orientation);
    const std::size_t width = description.width;
    if (upright.swap_axes)
        return read_turned_rows(first, count, out);
    if (!upright.flip_x && !upright.flip_y)
        return frame->read(0, first, width, count, out);
    for (std::size_t y = first; y < first + count; ++y, out += width)
    {
        frame->read(0, upright.flip_y ? description.height - 1 - y : y, width, 1, out);
        if (upright.flip_x)
            std::reverse(out, out + width);
    }
}

/// Rows are stored columns: a few stored rows at a time are read that wide, and turned.
void still_reader::read_turned_rows(std::size_t first, std::size_t count, argb_float* out) const
{
    constexpr std::size_t most = 16;
    const turn upright = turn_of(description.orientation);
    const std::size_t width = description.width;
    // Upright rows first .. first + count are these stored columns, in order or reversed.
    const std::size_t from = upright.flip_y ? description.height - first - count : first;
    std::vector<argb_float> tile(most * count);
    // A few stored rows at a time, so that the tile stays in the cache while it is turned.
    for (std::size_t row = 0; row < width; row += most)
    {
        const std::size_t rows = std::min(most, width - row);
        frame->read(from, row, count, rows, tile.data());
        for (std::size_t i = 0; i < count; ++i)
            for (std::size_t j = 0; j < rows; ++j)
            {
                const std::size_t x = upright.flip_x ? width - 1 - row - j : row + j;
                out[(upright.flip_y ? count - 1 - i : i) * width + x] = tile[j * count + i];
            }
    }
}

} // namespace ov1::media

#include "media/stills/picture_kind.h"

#include "media/base/byte_view.h"
#include "media/base/failures.h"

extern "C"
{
#include <libavformat/avformat.h>
}

#include <array>
#include <string>

namespace ov1::media
{

namespace
{

using namespace std::string_view_literals;

/// By signature. Two letters alone (BM, P6) may begin other files as well: their decoders then fail.
constexpr std::array<picture_kind, 19> kinds{{
    {"PNG", "\x89PNG\r\n\x1A\n"sv, 0, still_format::png, AV_CODEC_ID_PNG, png_facts},
    {"JPEG", "\xFF\xD8\xFF"sv, 0, still_format::jpeg, AV_CODEC_ID_MJPEG, jpeg_facts},
    {"TIFF", "II\x2A\0"sv, 0, still_format::tiff, AV_CODEC_ID_TIFF, tiff_facts},
    {"TIFF", "MM\0\x2A"sv, 0, still_format::tiff, AV_CODEC_ID_TIFF, tiff_facts},
    {"EXR", "\x76\x2F\x31\x01"sv, 0, still_format::exr, AV_CODEC_ID_EXR, exr_facts},
    {"DPX", "SDPX"sv, 0, still_format::dpx, AV_CODEC_ID_DPX, dpx_facts},
    {"DPX", "XPDS"sv, 0, still_format::dpx, AV_CODEC_ID_DPX, dpx_facts},
    {"WebP", "WEBP"sv, 8, still_format::other, AV_CODEC_ID_WEBP, nullptr},
    {"BMP", "BM"sv, 0, still_format::other, AV_CODEC_ID_BMP, nullptr},
    {"JPEG 2000", "jP  "sv, 4, still_format::other, AV_CODEC_ID_JPEG2000, nullptr},
    {"JPEG 2000", "\xFF\x4F\xFF\x51"sv, 0, still_format::other, AV_CODEC_ID_JPEG2000, nullptr},
    {"QOI", "qoif"sv, 0, still_format::other, AV_CODEC_ID_QOI, nullptr},
    {"PBM", "P1"sv, 0, still_format::other, AV_CODEC_ID_PBM, nullptr},
    {"PBM", "P4"sv, 0, still_format::other, AV_CODEC_ID_PBM, nullptr},
    {"PGM", "P2"sv, 0, still_format::other, AV_CODEC_ID_PGM, nullptr},
    {"PGM", "P5"sv, 0, still_format::other, AV_CODEC_ID_PGM, nullptr},
    {"PPM", "P3"sv, 0, still_format::other, AV_CODEC_ID_PPM, nullptr},
    {"PPM", "P6"sv, 0, still_format::other, AV_CODEC_ID_PPM, nullptr},
    {"PAM", "P7"sv, 0, still_format::other, AV_CODEC_ID_PAM, nullptr},
}};

constexpr picture_kind tga{"TGA", {}, 0, still_format::other, AV_CODEC_ID_TARGA, nullptr};

bool is_named_tga(std::string_view path)
{
    const std::string_view end = path.substr(path.size() - std::min<std::size_t>(path.size(), 4));
    return end == ".tga" || end == ".TGA";
}

/// What libav takes the file for, where it is sure; empty otherwise.
std::string clip_name(std::span<const std::uint8_t> file)
{
    constexpr std::size_t probed = 1 << 16; // bytes; the file's own end is padded, so no copy is needed
    AVProbeData data{};
    data.filename = "";
    data.buf = const_cast<std::uint8_t*>(file.data());
    data.buf_size = static_cast<int>(std::min(file.size(), probed));
    int score = 0;
    const AVInputFormat* format = av_probe_input_format3(&data, 1, &score);
    return format != nullptr && score > AVPROBE_SCORE_RETRY ? format->long_name : "";
}

} // namespace

result<const picture_kind*> kind_of(std::span<const std::uint8_t> file, std::string_view path)
{
    const byte_view bytes(file);
    for (const picture_kind& kind : kinds)
        if (bytes.has(kind.mark_at, kind.mark))
            return &kind;
    // Last, because the name alone decides: a wrongly named file of another kind was found above.
    if (is_named_tga(path))
        return &tga;
    const std::string clip = clip_name(file);
    return unsupported(clip.empty() ? "is not a picture" : "is not a still picture (" + clip + ")",
                       "still pictures are PNG, JPEG, TIFF, EXR, DPX and the like");
}

} // namespace ov1::media

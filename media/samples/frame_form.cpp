#include "media/samples/frame_form.h"

#include "media/base/failures.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace ov1::media
{

namespace
{

/// Formats that libav's JPEG decoder gives: full range, whatever the tags say.
bool is_jpeg_form(AVPixelFormat pixels)
{
    return pixels == AV_PIX_FMT_YUVJ420P || pixels == AV_PIX_FMT_YUVJ422P || pixels == AV_PIX_FMT_YUVJ444P ||
           pixels == AV_PIX_FMT_YUVJ440P || pixels == AV_PIX_FMT_YUVJ411P;
}

bool has_flag(const AVPixFmtDescriptor& format, std::uint64_t flag) { return (format.flags & flag) != 0; }

colour_family family_of(const AVPixFmtDescriptor& format)
{
    if (has_flag(format, AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL))
        return colour_family::rgb;
    return format.nb_components < 3 ? colour_family::gray : colour_family::ycbcr;
}

/// The matrix of a tag; none for one that is not supported.
std::optional<ycbcr_matrix> matrix_of(int tag, int width, int height)
{
    switch (tag)
    {
    case AVCOL_SPC_BT709:
        return ycbcr_matrix::bt709;
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return ycbcr_matrix::bt601;
    case AVCOL_SPC_BT2020_NCL:
        return ycbcr_matrix::bt2020;
    case AVCOL_SPC_FCC:
        return ycbcr_matrix::fcc;
    case AVCOL_SPC_SMPTE240M:
        return ycbcr_matrix::smpte240m;
    case AVCOL_SPC_RGB: // an incorrect tag on YCbCr
    case AVCOL_SPC_UNSPECIFIED:
    case AVCOL_SPC_RESERVED:
        return is_large(width, height) ? ycbcr_matrix::bt709 : ycbcr_matrix::bt601;
    default:
        return std::nullopt;
    }
}

std::string name_of(int matrix)
{
    const bool is_known = matrix >= 0 && matrix < AVCOL_SPC_NB;
    const char* const name = is_known ? av_color_space_name(static_cast<AVColorSpace>(matrix)) : nullptr;
    return name != nullptr ? name : "code " + std::to_string(matrix);
}

/// How many pixels share a chroma sample, and on which it lies. Only where two share it can it lie on one of them.
void place_chroma(const AVPixFmtDescriptor& format, AVChromaLocation where, bool is_jpeg, frame_form& form)
{
    form.across.log2 = format.log2_chroma_w;
    form.down.log2 = format.log2_chroma_h;
    if (where == AVCHROMA_LOC_UNSPECIFIED)
        where = is_jpeg ? AVCHROMA_LOC_CENTER : AVCHROMA_LOC_LEFT;
    const bool left = where == AVCHROMA_LOC_LEFT || where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_BOTTOMLEFT;
    // Left and centre lie between two rows, as MPEG-2 and JPEG define them.
    const bool top = where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_TOP;
    const bool bottom = where == AVCHROMA_LOC_BOTTOMLEFT || where == AVCHROMA_LOC_BOTTOM;
    if (left && form.across.log2 == 1)
        form.across.site = 0;
    if ((top || bottom) && form.down.log2 == 1)
        form.down.site = bottom ? 1 : 0;
}

/// Nothing for pixel formats that are not read.
std::optional<sample_storage> storage_of(AVPixelFormat pixels, const AVPixFmtDescriptor& format)
{
    const bool is_xyz = pixels == AV_PIX_FMT_XYZ12LE || pixels == AV_PIX_FMT_XYZ12BE;
    // XYZ needs a conversion of its own, frames on a graphics card have no samples in memory, and Bayer patterns have
    // one colour for each pixel.
    if (is_xyz || has_flag(format, AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BAYER))
        return std::nullopt;
    if (has_flag(format, AV_PIX_FMT_FLAG_PAL))
        return sample_storage::palette;
    if (pixels == AV_PIX_FMT_MONOBLACK || pixels == AV_PIX_FMT_MONOWHITE)
        return sample_storage::bits;
    // Fewer than 8 bits occur in packed RGB (5-6-5). In bitstreams samples cross bytes, which each_code cannot read.
    const bool is_ycbcr = family_of(format) == colour_family::ycbcr;
    const bool is_float = has_flag(format, AV_PIX_FMT_FLAG_FLOAT);
    const int fewest = has_flag(format, AV_PIX_FMT_FLAG_RGB) ? 1 : 8;
    const bool fits = std::all_of(format.comp, format.comp + format.nb_components, [&](const AVComponentDescriptor& c)
                                  { return is_float ? c.depth == 32 : c.depth >= fewest && c.depth <= 16; });
    if (!fits || (is_float && is_ycbcr) || has_flag(format, AV_PIX_FMT_FLAG_BITSTREAM))
        return std::nullopt;
    return sample_storage::components;
}

/// Alpha always uses all codes, also beside limited luma.
void set_components(const AVPixFmtDescriptor& format, bool is_full, frame_form& form)
{
    const bool is_float = has_flag(format, AV_PIX_FMT_FLAG_FLOAT);
    for (int i = 0; i < format.nb_components; ++i)
    {
        const bool is_alpha = form.has_alpha && i == format.nb_components - 1;
        const bool is_chroma = form.family == colour_family::ycbcr && (i == 1 || i == 2);
        const int bits = is_float ? 16 : format.comp[i].depth;
        form.components[static_cast<std::size_t>(i)] = {
            layout_of(format, i), is_chroma ? chroma_range(bits, is_full) : luma_range(bits, is_full || is_alpha)};
    }
}

} // namespace

int matrix_code(const AVColorSpace& stored)
{
    int code = 0; // copied, for an enumeration must not be read while it holds another value
    static_assert(sizeof code == sizeof stored);
    std::memcpy(&code, &stored, sizeof code);
    return code;
}

colour_tags still_tags(const AVFrame& frame, bool is_full)
{
    colour_tags tags{frame.color_range, matrix_code(frame.colorspace), frame.chroma_location};
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    if (format == nullptr || family_of(*format) != colour_family::ycbcr ||
        (is_full && tags.range == AVCOL_RANGE_UNSPECIFIED))
        tags.range = AVCOL_RANGE_JPEG;
    if (tags.matrix == AVCOL_SPC_UNSPECIFIED)
        tags.matrix = AVCOL_SPC_BT470BG;
    if (tags.chroma == AVCHROMA_LOC_UNSPECIFIED)
        tags.chroma = AVCHROMA_LOC_CENTER;
    return tags;
}

result<frame_form> form_of(AVPixelFormat pixels, const colour_tags& tags, int width, int height)
{
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(pixels);
    const auto storage = format != nullptr ? storage_of(pixels, *format) : std::nullopt;
    if (!storage)
        return unsupported("the pixel format " + std::string(format != nullptr ? format->name : "unknown") +
                           " is not supported");
    frame_form made;
    made.pixels = pixels;
    made.storage = *storage;
    made.family = family_of(*format);
    made.has_alpha = has_flag(*format, AV_PIX_FMT_FLAG_ALPHA);
    made.bits = format->comp[0].depth;
    if (made.storage != sample_storage::components)
        return made; // palettes and bits are RGB and black or white: no tag changes their meaning

    const bool is_jpeg = is_jpeg_form(pixels);
    const bool is_full = tags.range == AVCOL_RANGE_JPEG || is_jpeg || has_flag(*format, AV_PIX_FMT_FLAG_FLOAT) ||
                         (tags.range == AVCOL_RANGE_UNSPECIFIED && made.family == colour_family::rgb);
    set_components(*format, is_full, made);
    if (made.family == colour_family::ycbcr)
    {
        const auto matrix = matrix_of(tags.matrix, width, height);
        if (!matrix)
            return unsupported("the colour matrix " + name_of(tags.matrix) + " is not supported");
        made.weights = weights_of(*matrix);
        // Full range without a place for chroma is taken to come from JPEG, whose samples lie between the pixels.
        place_chroma(*format, tags.chroma, is_jpeg || tags.range == AVCOL_RANGE_JPEG, made);
    }
    return made;
}

bool can_be_graded(const frame_form& form) { return form.storage == sample_storage::components && form.bits >= 8; }

bool can_be_written(const frame_form& form)
{
    // In formats of two planes (P010) samples with bits below them have their bytes to themselves; elsewhere those bits
    // belong to other samples.
    const int components = form.family == colour_family::gray ? 1 : 3;
    return can_be_graded(form) &&
           std::all_of(form.components.begin(), form.components.begin() + components, [&](const component_form& c)
                       { return c.layout.shift == 0 || (form.family == colour_family::ycbcr && c.layout.bytes == 2); });
}

} // namespace ov1::media

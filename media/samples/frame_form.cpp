#include "media/samples/frame_form.h"

#include "media/base/failures.h"

#include <algorithm>

namespace ov1::media
{

namespace
{

bool is_jpeg_form(AVPixelFormat pixels)
{
    return pixels == AV_PIX_FMT_YUVJ420P || pixels == AV_PIX_FMT_YUVJ422P || pixels == AV_PIX_FMT_YUVJ444P ||
           pixels == AV_PIX_FMT_YUVJ440P || pixels == AV_PIX_FMT_YUVJ411P;
}

bool find_matrix(AVColorSpace tag, int width, int height, ycbcr_matrix& matrix)
{
    switch (tag)
    {
    case AVCOL_SPC_BT709:
        matrix = ycbcr_matrix::bt709;
        return true;
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        matrix = ycbcr_matrix::bt601;
        return true;
    case AVCOL_SPC_BT2020_NCL:
        matrix = ycbcr_matrix::bt2020;
        return true;
    case AVCOL_SPC_FCC:
        matrix = ycbcr_matrix::fcc;
        return true;
    case AVCOL_SPC_SMPTE240M:
        matrix = ycbcr_matrix::smpte240m;
        return true;
    case AVCOL_SPC_RGB: // a wrong tag on what is none
    case AVCOL_SPC_UNSPECIFIED:
    case AVCOL_SPC_RESERVED:
        matrix = is_large(width, height) ? ycbcr_matrix::bt709 : ycbcr_matrix::bt601;
        return true;
    default:
        return false;
    }
}

void place_chroma(const AVPixFmtDescriptor& format, AVChromaLocation where, bool is_jpeg, frame_form& form)
{
    form.across.log2 = format.log2_chroma_w;
    form.down.log2 = format.log2_chroma_h;
    if (where == AVCHROMA_LOC_UNSPECIFIED)
        where = is_jpeg ? AVCHROMA_LOC_CENTER : AVCHROMA_LOC_LEFT;
    const bool left = where == AVCHROMA_LOC_LEFT || where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_BOTTOMLEFT;
    const bool top = where == AVCHROMA_LOC_TOPLEFT || where == AVCHROMA_LOC_TOP;
    const bool bottom = where == AVCHROMA_LOC_BOTTOMLEFT || where == AVCHROMA_LOC_BOTTOM;
    if (left && form.across.log2 == 1)
        form.across.site = 0;
    if ((top || bottom) && form.down.log2 == 1)
        form.down.site = bottom ? 1 : 0;
}

bool has_known_samples(const AVPixFmtDescriptor& format)
{
    constexpr unsigned int others =
        AV_PIX_FMT_FLAG_HWACCEL | AV_PIX_FMT_FLAG_BAYER | AV_PIX_FMT_FLAG_PAL | AV_PIX_FMT_FLAG_BITSTREAM;
    const bool is_float = (format.flags & AV_PIX_FMT_FLAG_FLOAT) != 0;
    const bool is_rgb = (format.flags & AV_PIX_FMT_FLAG_RGB) != 0;
    return (format.flags & others) == 0 && (is_rgb || format.nb_components != 2 || !is_float) &&
           std::all_of(format.comp, format.comp + format.nb_components, [&](const AVComponentDescriptor& c)
                       { return is_float ? c.depth == 32 : c.depth >= 8 && c.depth <= 16; });
}

} // namespace

result<frame_form> form_of(AVPixelFormat pixels, const colour_tags& tags, int width, int height)
{
    const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(pixels);
    const bool is_xyz = pixels == AV_PIX_FMT_XYZ12LE || pixels == AV_PIX_FMT_XYZ12BE;
    if (format == nullptr || is_xyz || !has_known_samples(*format))
        return unsupported("frames of the form " + std::string(format != nullptr ? format->name : "unknown") +
                           " are not graded");
    frame_form made;
    made.pixels = pixels;
    const bool is_float = (format->flags & AV_PIX_FMT_FLAG_FLOAT) != 0;
    const bool is_rgb = (format->flags & AV_PIX_FMT_FLAG_RGB) != 0;
    made.family = is_rgb ? colour_family::rgb : format->nb_components < 3 ? colour_family::gray : colour_family::ycbcr;
    made.has_alpha = (format->flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
    made.bits = format->comp[0].depth;

    const bool is_jpeg = is_jpeg_form(pixels);
    const bool is_full =
        tags.range == AVCOL_RANGE_JPEG || is_jpeg || is_float || (tags.range == AVCOL_RANGE_UNSPECIFIED && is_rgb);
    for (int i = 0; i < format->nb_components; ++i)
    {
        const bool is_alpha = made.has_alpha && i == format->nb_components - 1;
        const bool is_chroma = made.family == colour_family::ycbcr && (i == 1 || i == 2);
        const int bits = is_float ? 16 : format->comp[i].depth;
        made.components[i] = {layout_of(*format, i),
                              is_chroma ? chroma_range(bits, is_full) : luma_range(bits, is_full || is_alpha)};
    }
    if (made.family == colour_family::ycbcr)
    {
        ycbcr_matrix matrix{};
        if (!find_matrix(tags.matrix, width, height, matrix))
            return unsupported("the colour matrix " + std::string(av_color_space_name(tags.matrix)) +
                                   " is no weighted sum of red, green and blue",
                               "--matrix 601, 709 or 2020 takes the place of a wrong tag");
        made.weights = weights_of(matrix);
        place_chroma(*format, tags.chroma, is_jpeg || tags.range == AVCOL_RANGE_JPEG, made);
    }
    return made;
}

bool can_be_written(const frame_form& form)
{
    // Samples with bits below them have their bytes to themselves in the formats of two planes (P010), else they share.
    const int components = form.family == colour_family::gray ? 1 : 3;
    return std::all_of(form.components.begin(), form.components.begin() + components, [&](const component_form& c)
                       { return c.layout.shift == 0 || (form.family == colour_family::ycbcr && c.layout.bytes == 2); });
}

} // namespace ov1::media

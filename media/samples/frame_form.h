// What the samples of a frame are: their layout in memory, and what their codes mean. Stills, clips, single frames and
// previews all decide it here.
#pragma once

#include "media/samples/sample_access.h"
#include "media/samples/ycbcr_coding.h"
#include "shared/result.h"

extern "C"
{
#include <libavutil/frame.h>
}

#include <array>
#include <cstddef>

namespace ov1::media
{

/// What a stream or a file says about its codes, or the user instead.
struct colour_tags
{
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    int matrix = AVCOL_SPC_UNSPECIFIED; ///< an AVColorSpace, or a code of a file that the enumeration lacks
    AVChromaLocation chroma = AVCHROMA_LOC_UNSPECIFIED;

    bool operator==(const colour_tags&) const = default;
};

/// The matrix that a frame or a stream holds, as a number: libav stores the codes of files unchecked.
int matrix_code(const AVColorSpace& stored);

/// The tags of a still picture. RGB and grey always use all codes. YCbCr without tags has the matrix of BT.601 and
/// chroma centred between its pixels, as ITU-T T.871 (JPEG) and TIFF 6.0 define it, and full range where the file says
/// so without a tag (is_full).
colour_tags still_tags(const AVFrame& frame, bool is_full);

enum class colour_family
{
    gray,
    ycbcr,
    rgb,
};

enum class sample_storage
{
    components, ///< every component has samples of its own
    palette,    ///< 8-bit indices into 256 colours
    bits,       ///< one bit for each pixel, black or white
};

/// One component of the pixels: its place in memory and the meaning of its codes.
struct component_form
{
    sample_layout layout;
    code_range range;

    /// Samples are consecutive, in whole bytes of this machine's order.
    bool is_plain() const { return layout.step == layout.bytes && layout.shift == 0 && !layout.swap; }
};

struct frame_form
{
    AVPixelFormat pixels = AV_PIX_FMT_NONE;
    sample_storage storage = sample_storage::components;
    colour_family family = colour_family::rgb;
    bool has_alpha = false;
    int bits = 8;                                  ///< of a colour sample; 32 for floats
    std::array<component_form, 4> components = {}; ///< luma, Cb, Cr or red, green, blue; then alpha
    ycbcr_weights weights = {};
    chroma_axis across; ///< of the chroma planes
    chroma_axis down;

    const component_form& alpha() const { return components[family == colour_family::gray ? 1 : 3]; }

    /// Several pixels share one chroma sample.
    bool shares_chroma() const { return across.log2 != 0 || down.log2 != 0; }
    /// Two neighbouring pixels of a row share one: such rows are converted as pairs.
    bool has_pairs() const { return family == colour_family::ycbcr && across.log2 == 1; }
};

/// Whether a clip without a matrix tag is taken to have that of BT.709: more than 1024 pixels a row or 576 rows.
constexpr bool is_large(int width, int height) { return width > 1024 || height > 576; }

/// The form of grey, RGB and YCbCr frames with integers up to 16 bits or 32-bit floats, of palettes and of bits. What
/// the tags leave open follows the usage of video: limited range for YCbCr and grey, BT.601 or BT.709 by size, chroma
/// on the left pixel; for the pixel formats of JPEG full range and chroma between its pixels. Fails for other pixel
/// formats and for matrices other than BT.601, BT.709, BT.2020 (non-constant luminance), FCC and SMPTE 240M.
result<frame_form> form_of(AVPixelFormat pixels, const colour_tags& tags, int width, int height);

/// Whether a frame_grader takes such frames: components of 8 bits or more.
bool can_be_graded(const frame_form& form);

/// Whether a frame_grader writes such frames: no sample shares its bytes with another.
bool can_be_written(const frame_form& form);

} // namespace ov1::media

// What the samples of a video frame are: their layout in memory, and what their codes mean.
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

/// What the stream, or the user in its place, says about its codes.
struct colour_tags
{
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    AVColorSpace matrix = AVCOL_SPC_UNSPECIFIED;
    AVChromaLocation chroma = AVCHROMA_LOC_UNSPECIFIED;

    bool operator==(const colour_tags&) const = default;
};

enum class colour_family
{
    gray,
    ycbcr,
    rgb,
};

/// One component of the pixels: its place in memory and the meaning of its codes.
struct component_form
{
    sample_layout layout;
    code_range range;

    /// Samples lie one behind the other in whole bytes of this machine's order.
    bool is_plain() const { return layout.step == layout.bytes && layout.shift == 0 && !layout.swap; }
};

struct frame_form
{
    AVPixelFormat pixels = AV_PIX_FMT_NONE;
    colour_family family = colour_family::rgb;
    bool has_alpha = false;
    int bits = 8;                                  ///< of a colour sample; 32 for floats
    std::array<component_form, 4> components = {}; ///< luma, Cb, Cr or red, green, blue; alpha is the last one there is
    ycbcr_weights weights = {};
    chroma_axis across; ///< of the chroma planes
    chroma_axis down;

    const component_form& alpha() const { return components[family == colour_family::gray ? 1 : 3]; }
};

/// Whether a picture without a tag is taken to have the matrix of BT.709: beyond 1024 pixels a row or 576 rows.
constexpr bool is_large(int width, int height) { return width > 1024 || height > 576; }

/// The form of a pixel format of 8 to 16 bits or of 32-bit floats. What the tags leave open is limited range, the
/// matrix of BT.601 up to 576 lines and of BT.709 above, and chroma on the left; full range and chroma amid its pixels
/// for the formats of JPEG. Fails for what is none of these, and for matrices that are not sums of weights.
result<frame_form> form_of(AVPixelFormat pixels, const colour_tags& tags, int width, int height);

/// Whether frames of the form can be written: samples in bits of their own bytes.
bool can_be_written(const frame_form& form);

} // namespace ov1::media

#include "media/clips/clip_form.h"

#include <array>

namespace ov1::media
{

namespace
{

/// What the frame says, else what the stream says.
template <typename T>
T first_set(T frame, T stream, T unset)
{
    return frame != unset ? frame : stream;
}

} // namespace

colour_tags clip_tags(const AVFrame& frame, const AVCodecParameters& stream, const clip_request& request)
{
    colour_tags tags{
        first_set(frame.color_range, stream.color_range, AVCOL_RANGE_UNSPECIFIED),
        first_set<int>(matrix_code(frame.colorspace), matrix_code(stream.color_space), AVCOL_SPC_UNSPECIFIED),
        first_set(frame.chroma_location, stream.chroma_location, AVCHROMA_LOC_UNSPECIFIED)};
    if (request.range != range_choice::automatic)
        tags.range = request.range == range_choice::full ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    // By matrix_choice.
    constexpr std::array matrices{AVCOL_SPC_UNSPECIFIED, AVCOL_SPC_SMPTE170M, AVCOL_SPC_BT709, AVCOL_SPC_BT2020_NCL};
    if (request.matrix != matrix_choice::automatic)
        tags.matrix = matrices[static_cast<std::size_t>(request.matrix)];
    return tags;
}

result<frame_form> clip_form(const AVFrame& frame, const colour_tags& tags)
{
    const auto pixels = static_cast<AVPixelFormat>(frame.format);
    auto form = form_of(pixels, tags, frame.width, frame.height);
    colour_tags other_matrix = tags;
    other_matrix.matrix = AVCOL_SPC_UNSPECIFIED; // if that works, only the tag is in the way
    if (!form && form_of(pixels, other_matrix, frame.width, frame.height))
        form.error().hint = "if the tag is incorrect, override it with --matrix 601, 709 or 2020";
    return form;
}

} // namespace ov1::media

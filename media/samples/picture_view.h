// The planes of a frame, or of one field of it, as rows in memory.
#pragma once

#include "media/samples/frame_form.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ov1::media
{

/// Owns nothing: the frame outlives it. Planes are numbered as libav numbers them.
struct picture_view
{
    std::array<std::uint8_t*, 4> data;
    std::array<std::ptrdiff_t, 4> stride; ///< bytes from one row to the next; negative if the last row comes first
    std::size_t width;                    ///< pixels
    std::size_t height;                   ///< rows of pixels
    std::size_t chroma_height;            ///< rows of chroma samples

    /// The first byte of a row of a plane, y counted in that plane.
    std::uint8_t* row(int plane, std::size_t y) const
    {
        const auto at = static_cast<std::size_t>(plane);
        return data[at] + static_cast<std::ptrdiff_t>(y) * stride[at];
    }
};

/// A whole frame, whose form this is.
inline picture_view view_of(const AVFrame& frame, const frame_form& form)
{
    picture_view view{};
    for (std::size_t i = 0; i < view.data.size(); ++i)
    {
        view.data[i] = frame.data[i];
        view.stride[i] = frame.linesize[i];
    }
    view.width = static_cast<std::size_t>(frame.width);
    view.height = static_cast<std::size_t>(frame.height);
    view.chroma_height = form.down.samples(view.height);
    return view;
}

/// The even (parity 0) or the odd rows of a frame. Each row of chroma samples belongs to one field as well; of an odd
/// number of rows the even field has one more.
inline picture_view field_of(picture_view view, std::size_t parity)
{
    for (std::size_t i = 0; i < view.data.size(); ++i)
    {
        if (view.data[i] != nullptr)
            view.data[i] += static_cast<std::ptrdiff_t>(parity) * view.stride[i];
        view.stride[i] *= 2;
    }
    view.height = (view.height + 1 - parity) / 2;
    view.chroma_height = (view.chroma_height + 1 - parity) / 2;
    return view;
}

/// The two fields of an interlaced frame are pictures of their own wherever rows share chroma.
inline bool has_fields(const AVFrame& frame, const frame_form& form)
{
    return frame.interlaced_frame != 0 && frame.height > 1 && form.down.log2 != 0;
}

} // namespace ov1::media

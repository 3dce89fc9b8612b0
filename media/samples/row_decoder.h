// From the codes of a frame's rows to red, green and blue.
#pragma once

#include "media/samples/component_access.h"
#include "media/samples/pixel_rows.h"

#include <cstddef>
#include <optional>

namespace ov1::media
{

/// Decodes rows of one picture after the other, of one form (components) and width. One thread at a time. Colours are
/// not limited. Chroma that several pixels share is repeated for them, or interpolated linearly where its sample lies
/// on a pixel (ycbcr_coding.h).
class row_decoder
{
public:
    /// The form outlives the decoder.
    row_decoder(const frame_form& form, std::size_t width);

    /// The picture of all following calls, which has the form and width of this decoder. Its memory stays valid until
    /// another picture is set.
    void set_picture(const picture_view& picture);

    /// Reads the chroma samples that the pixels begin..end of row y take. Must precede their decoding where the form
    /// shares chroma; does nothing elsewhere.
    void read_chroma(std::size_t y, std::size_t begin, std::size_t end);

    /// Count pixels from x on, as pairs where the form has them (x is even then), else in order. Writes up to margin
    /// floats (sample_kernel.h) after the last pixel of each row.
    void decode(std::size_t x, std::size_t y, std::size_t count, pixel_rows& to);
    /// The same, to the places that `to` names.
    void decode_pairs(std::size_t x, std::size_t y, std::size_t count, const ycbcr_kernel::pixel_pairs& to);
    void decode_in_order(std::size_t x, std::size_t y, std::size_t count, const rgb_planes<float>& to);

private:
    /// The chroma samples in `chroma`: of a row of pixels, and from one sample up to another.
    struct chroma_span
    {
        chroma_source rows;
        std::size_t first;
        std::size_t end;

        bool operator==(const chroma_span&) const = default;
    };

    /// One chroma plane's samples of the span to `samples`, each at its own index; `below` is room for a second row.
    void read_samples(const chroma_span& span, const component_form& component, float_row& samples, float_row& below);

    const frame_form& form;
    picture_view picture{};
    component_access access;
    chroma_rows chroma;                ///< of the row of pixels that is decoded
    chroma_rows chroma_below;          ///< the next row of samples, where pixels lie between two
    std::optional<chroma_span> loaded; ///< what `chroma` holds of the picture
};

} // namespace ov1::media

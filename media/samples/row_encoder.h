// From red, green and blue to the codes of a frame's rows.
#pragma once

#include "media/samples/component_access.h"
#include "media/samples/pixel_rows.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ov1::media
{

/// Encodes strips of rows, of one form (components) and width. One thread at a time; threads that encode different
/// strips of a picture write no common byte, as long as strips begin at multiples of the rows that share a sample.
/// Colours are limited to 0..1 where the form is YCbCr or grey, else to the range of its codes; a NaN is 0.
class row_encoder
{
public:
    /// The form outlives the encoder.
    row_encoder(const frame_form& form, std::size_t width);

    /// Begins a strip: the rows first..end of a picture.
    void begin_strip(const picture_view& picture, std::size_t first, std::size_t end);

    /// The rows that have to be encoded for the strip, in this order. Where samples lie on rows, rows of the
    /// neighbouring strips are among them (border rows): they count for the strip's chroma and are not written.
    std::size_t first_row() const { return begin; }
    std::size_t end_row() const { return until; }
    bool is_border(std::size_t y) const { return y < strip_first || y >= strip_end; }

    /// Count pixels of row y from x on, as pairs where the form has them (x is even then), else in order. Their colours
    /// are overwritten with chroma where chroma is shared.
    void encode(std::size_t x, std::size_t y, std::size_t count, pixel_rows& rows);

    /// After all pixels of a row: writes the chroma samples that are complete with it.
    void finish_row(std::size_t y, pixel_rows& rows);

private:
    static constexpr std::size_t most_taps = 5; ///< rows that one chroma sample takes part of

    /// Writes luma, and leaves Cb and Cr in the planes of blue and red.
    template <class pixels>
    void encode_luma(std::size_t x, std::size_t y, std::size_t count, const pixels& colours,
                     const ycbcr_weights& weights);
    /// The chroma of a row of pixels, from the planes of one colour: as codes of row y, or as samples.
    void extend_pairs(float_row& even, float_row& odd) const;
    void write_gathered(std::size_t y, float_row& even, float_row& odd, const component_form& component);
    void gather_pairs(float_row& even, float_row& odd, float_row& samples) const;
    void gather_means(float_row& pixels, float_row& samples) const;
    /// A row of chroma samples, once all rows of pixels that it takes part of are in `recent`.
    std::size_t last_row_of(std::size_t sample) const;
    void write_chroma(std::size_t sample);
    void write_mixed(std::size_t sample, float_row chroma_rows::* plane, const component_form& component,
                     std::span<const std::size_t> rows, const float* weights);

    const frame_form& form;
    picture_view picture{};
    component_access access;
    std::size_t strip_first = 0, strip_end = 0;  ///< rows that are written
    std::size_t begin = 0, until = 0;            ///< rows that are encoded
    std::size_t next_sample = 0, end_sample = 0; ///< rows of chroma samples still to be written
    std::vector<chroma_rows> recent;             ///< chroma of the latest rows: row y at y modulo their number
    chroma_rows mixed;                           ///< a weighted sum of recent rows, before it becomes codes
};

} // namespace ov1::media

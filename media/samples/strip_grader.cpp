#include "media/samples/strip_grader.h"

#include <algorithm>

namespace ov1::media
{

namespace
{

/// A multiple of the pixels that share a chroma sample. Three planes of floats take 6 KiB, so a block and its codes
/// stay in a first cache of 32 KiB from decoding to encoding.
constexpr std::size_t block_pixels = 512;

} // namespace

strip_grader::strip_grader(const frame_form& from, const frame_form& to, const plane_grade& grade_row,
                           std::size_t width)
    : from(from)
    , to(to)
    , grade_row(grade_row)
    , decoder(from, width)
    , encoder(to, width)
    , rows(width)
    , alpha_access(width)
    , alpha(width)
{
}

void strip_grader::grade(const picture_view& source, const picture_view& target, std::size_t first, std::size_t end)
{
    decoder.set_picture(source);
    encoder.begin_strip(target, first, end);
    for (std::size_t y = encoder.first_row(); y < encoder.end_row(); ++y)
    {
        // Whole rows of chroma: the last pixels of a block may take a sample of the next block.
        decoder.read_chroma(y, 0, source.width);
        for (std::size_t x = 0; x < source.width; x += block_pixels)
            grade_block(x, y, std::min(block_pixels, source.width - x));
        if (to.has_alpha && !encoder.is_border(y))
            copy_alpha(source, target, y);
        // Only here: the samples at a block's end also count pixels of the next block.
        encoder.finish_row(y, rows);
    }
}

void strip_grader::grade_block(std::size_t x, std::size_t y, std::size_t count)
{
    decoder.decode(x, y, count, rows);
    // A grade takes each pixel by itself, so even and odd ones need not be joined for it.
    if (grade_row && from.has_pairs())
    {
        grade_row(y, rows.even.from(x / 2), (count + 1) / 2);
        grade_row(y, rows.odd.from(x / 2), count / 2);
    }
    else if (grade_row)
        grade_row(y, rows.in_order.from(x), count);
    // Only one side shares chroma between two pixels, as from 4:2:0 to RGB.
    if (from.has_pairs() && !to.has_pairs())
        rows.join_pairs(x, count);
    else if (!from.has_pairs() && to.has_pairs())
        rows.split_pairs(x, count);
    encoder.encode(x, y, count, rows);
}

void strip_grader::copy_alpha(const picture_view& source, const picture_view& target, std::size_t y)
{
    if (from.has_alpha)
        alpha_access.read(source, from.alpha(), 0, y, source.width, alpha.get());
    else
        std::fill_n(alpha.get(), source.width, 1.0f);
    alpha_access.write(target, to.alpha(), 0, y, source.width, alpha.get());
}

} // namespace ov1::media

// Takes one strip of a picture from codes to colours, through the grade, and back to codes.
//
//   picture  a frame, or one field of an interlaced frame
//   strip    consecutive rows of a picture: what one thread takes at a time
//   border   rows of the neighbouring strips whose colours count for the strip's chroma; graded again, not written
//   block    neighbouring pixels of a row, as many as the first cache holds as floats
//   pair     two neighbouring pixels that share a chroma sample; even and odd pixels are rows of their own
//   sample   one stored value of Cb or Cr, shared by one, two or more pixels across and down
//   sited    lying on a pixel, so that its neighbours are interpolated; else the sample counts for all its pixels alike
#pragma once

#include "media/samples/frame_grader.h"
#include "media/samples/pixel_rows.h"
#include "media/samples/row_decoder.h"
#include "media/samples/row_encoder.h"

#include <cstddef>

namespace ov1::media
{

/// Grades strip after strip of pictures that have one width. One thread at a time. Forms and grade outlive it.
class strip_grader
{
public:
    strip_grader(const frame_form& from, const frame_form& to, const plane_grade& grade_row, std::size_t width);

    /// The rows first..end of source to those of target. A strip begins at a multiple of the rows that share a sample.
    void grade(const picture_view& source, const picture_view& target, std::size_t first, std::size_t end);

private:
    /// Decodes, grades and encodes count pixels of row y from x on, which is a multiple of a block's pixels.
    void grade_block(std::size_t x, std::size_t y, std::size_t count);
    /// Converts a row of alpha, or makes it opaque where the source has none.
    void copy_alpha(const picture_view& source, const picture_view& target, std::size_t y);

    const frame_form& from;
    const frame_form& to;
    const plane_grade& grade_row;
    row_decoder decoder;
    row_encoder encoder;
    pixel_rows rows; ///< of one row of the picture; each block has its place in them
    component_access alpha_access;
    float_row alpha;
};

} // namespace ov1::media

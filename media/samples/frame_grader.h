// Takes the rows of a video frame through a grade, piece by piece, without leaving the cache in between.
#pragma once

#include "media/samples/frame_form.h"
#include "media/samples/piece_runner.h"
#include "shared/rgb_planes.h"

#include <functional>

namespace ov1::media
{

/// Grades some pixels of a row in place, in any order: display-referred code values, nominally 0..1 and not limited;
/// neither need the results be.
using plane_grade = std::function<void(std::size_t y, const rgb_planes<float>& row, std::size_t count)>;

/// Decodes to red, green and blue, grades, encodes and rounds. Colour that is not graded returns as it was: exactly
/// where all pixels have their own chroma, and to rounding where they share it, as long as it lies within red, green
/// and blue of 0..1. Alpha is carried over; it is 1 where the source has none.
class frame_grader
{
public:
    frame_grader(const frame_form& from, const frame_form& to)
        : from(from)
        , to(to)
    {
    }

    /// Both frames have the size of the first and the two forms, and are apart. An interlaced frame is taken as two
    /// pictures wherever chroma is shared between rows. The grade (none, if it is empty) is called from whatever
    /// threads the runner uses, some rows more than once.
    void grade(const AVFrame& in, AVFrame& out, const plane_grade& how, const piece_runner& run) const;

private:
    frame_form from;
    frame_form to;
};

} // namespace ov1::media

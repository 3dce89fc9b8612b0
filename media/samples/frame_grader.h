// Grades the frames of a clip, strip by strip, so that pixels stay in the first cache from codes to codes.
#pragma once

#include "media/samples/frame_form.h"
#include "media/samples/piece_runner.h"
#include "shared/rgb_planes.h"

#include <functional>

namespace ov1::media
{

/// Grades some pixels of row y in place, in any order: display-referred code values, nominally 0..1 and not limited;
/// neither need the results be.
using plane_grade = std::function<void(std::size_t y, const rgb_planes<float>& row, std::size_t count)>;

/// Decodes to red, green and blue, grades, encodes and rounds. Colour that is not graded comes back unchanged: exactly
/// where every pixel has its own chroma, and to rounding where pixels share it, as long as it lies within red, green
/// and blue of 0..1. Alpha is kept; it is 1 where the source has none.
class frame_grader
{
public:
    /// The source can be graded, the target can be written (frame_form.h).
    frame_grader(const frame_form& from, const frame_form& to)
        : from(from)
        , to(to)
    {
    }

    /// Both frames have the size of the first and the two forms, and do not overlap. The fields of an interlaced frame
    /// are graded as two pictures wherever rows share chroma. The grade is called from any threads that the runner
    /// uses, for some rows more than once; without a grade (an empty function) frames are only converted.
    void grade(const AVFrame& in, AVFrame& out, const plane_grade& grade_row, const piece_runner& run) const;

private:
    frame_form from;
    frame_form to;
};

} // namespace ov1::media

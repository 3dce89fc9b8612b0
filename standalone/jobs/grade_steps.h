// The steps of a grade: the input LUT, then the effect.
#pragma once

#include "effect/lut/cube_reader.h"
#include "framework/row_renderer.h"
#include "media/samples/frame_grader.h"
#include "media/stills/grade_still.h"
#include "shared/result.h"

#include <memory>
#include <string>

namespace ov1
{

/// Either may be null, and is then left out. Shared by all rows and threads.
/// A copy is cheap and keeps both tables alive.
struct grade_steps
{
    std::shared_ptr<const cube_table> input;
    std::shared_ptr<const row_renderer> effect; ///< null where it is bypassed

    /// Empty where both are null, so that samples stay unchanged.
    media::row_grade for_stills() const;
    media::plane_grade for_clips() const;
};

/// Reads a .cube file.
/// Fails as unreadable, or as invalid_grade for a file that is not a valid table; the path is the subject. At most 1
/// GiB is read.
result<std::shared_ptr<const cube_table>> read_input_table(const std::string& path);

} // namespace ov1

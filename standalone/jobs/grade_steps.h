// What pixels go through: the input's table, then the effect.
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

/// Either may be missing. Shared by all rows and threads.
struct grade_steps
{
    std::shared_ptr<const cube_table> input;
    std::shared_ptr<const row_renderer> effect; ///< null where it is switched off

    /// Empty where there is nothing to do, so that samples pass untouched.
    media::row_grade for_stills() const;
    media::plane_grade for_clips() const;
};

/// Reads a .cube file.
result<std::shared_ptr<const cube_table>> read_input_table(const std::string& path);

} // namespace ov1

// One picture of a run: read, graded, written.
#pragma once

#include "command_line/output_plan.h"
#include "command_line/problem.h"
#include "media/stills/grade_still.h"
#include "media/stills/still_reader.h"
#include "media/stills/still_writer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// How all pictures of a run are treated.
struct picture_settings
{
    media::row_grade grade; ///< empty passes samples untouched
    media::write_request format;
    bool overwrite = false;
    bool dry_run = false;
    unsigned int threads = 0; ///< 0 for all processors
};

/// What became of a picture.
struct picture_result
{
    exit_code code = exit_code::done;
    problem failure;               ///< where the code is not done
    std::vector<problem> warnings; ///< with their subjects
    media::still_info written;     ///< size, depth and format of the output
    std::uint64_t limited_pixels = 0;
};

/// Takes a picture from its input to its output. The output is written whole or not at all; a dry run reads the input,
/// settles the format and writes nothing.
picture_result grade_picture(const output_job& job, const picture_settings& settings);

/// The same for a picture that has been read already.
picture_result grade_read_picture(const media::still_reader& source, const output_job& job,
                                  const picture_settings& settings);

} // namespace ov1

// Grades one picture of a run.
#pragma once

#include "command_line/exit_code.h"
#include "command_line/output_plan.h"
#include "media/stills/grade_still.h"
#include "media/stills/still_reader.h"
#include "media/stills/still_writer.h"
#include "standalone/jobs/job_outcome.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// The settings that all pictures of a run share.
/// The grade is called from several threads at once.
struct picture_settings
{
    media::row_grade grade; ///< empty to leave samples unchanged
    media::write_request format = {};
    bool overwrite = false;
    bool dry_run = false;
    unsigned int threads = 0; ///< 0 for all processors
};

/// The outcome of one picture.
struct picture_result : job_outcome
{
    media::still_info written; ///< size, depth and format of the output
    /// Pixels of the source with a colour channel outside 0..1, or a NaN; the grade limits them.
    std::uint64_t limited_pixels = 0;

    exit_code code() const { return failed ? exit_code_of(*failed) : exit_code::done; }
};

/// Reads, grades and writes one picture; the output is written completely or not at all. A dry run reads the input,
/// determines the format and writes nothing.
picture_result grade_picture(const output_job& job, const picture_settings& settings);

/// The same for a picture that is already read.
/// job.input is used in messages only.
picture_result grade_read_picture(const media::still_reader& source, const output_job& job,
                                  const picture_settings& settings);

} // namespace ov1

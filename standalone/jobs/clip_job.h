// Grades one clip of a run, with its sound and the other streams of its file.
#pragma once

#include "command_line/console.h"
#include "command_line/exit_code.h"
#include "command_line/output_plan.h"
#include "command_line/progress.h"
#include "media/clips/clip_info.h"
#include "media/clips/clip_request.h"
#include "media/samples/frame_grader.h"
#include "standalone/jobs/job_outcome.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// The settings that all clips of a run share.
/// Valid for the whole run; the grade is called from several threads at once.
struct clip_settings
{
    media::plane_grade grade; ///< empty to leave samples unchanged
    media::clip_request format = {};
    bool overwrite = false;
    bool dry_run = false;
    unsigned int threads = 0; ///< 0 for all processors
    progress_style progress = progress_style::automatic;
    bool is_terminal = false; ///< whether stderr, where progress goes, is one
};

/// The outcome of one clip.
/// Frames and damages count up to the moment of a failure.
struct clip_result : job_outcome
{
    media::clip_info written;
    std::vector<media::clip_stream> streams; ///< of the source
    std::uint64_t frames = 0;                ///< written
    std::size_t damages = 0;                 ///< number of damaged parts of the source
    bool is_written = false;

    /// A clip that was written in spite of damage ends with some_failed, so that scripts notice.
    exit_code code() const
    {
        return failed ? exit_code_of(*failed) : damages != 0 ? exit_code::some_failed : exit_code::done;
    }
};

/// Reads, grades and writes one clip; the output is written completely or not at all. Progress and damage are printed
/// as they occur. A dry run decodes one frame, determines the format and writes nothing.
clip_result grade_clip_file(const output_job& job, const clip_settings& settings, console& out);

} // namespace ov1

#include "standalone/jobs/frames_job.h"

#include "command_line/frame_pattern.h"
#include "command_line/frame_progress.h"
#include "media/clips/clip_reader.h"

#include <filesystem>
#include <utility>

namespace ov1
{

namespace
{

/// Grades one frame; false where it could not be written, which the result then says.
bool grade_frame(const media::still_reader& frame, const output_job& job, const picture_settings& settings,
                 clip_result& result)
{
    picture_result written = grade_read_picture(frame, job, settings);
    // All frames of a clip have the same format, and so the same warnings: those of the first are enough.
    if (result.frames == 0)
        result.warnings = std::move(written.warnings);
    result.written.width = written.written.width;
    result.written.height = written.written.height;
    // Frames are pictures: their format and depth stand where a clip has its container and pixel format.
    result.written.container = written.written.format_name;
    result.written.pixel_format = name_of(written.written.depth);
    result.failed = std::move(written.failed);
    return !result.failed;
}

} // namespace

clip_result grade_clip_into_frames(const grade_plan& plan, const picture_settings& settings, const clip_settings& clip,
                                   bool no_clobber, console& out)
{
    const output_job& job = plan.outputs.jobs.front();
    clip_result result;
    media::clip_reader reader;
    media::still_reader frame;
    if (const auto opened = reader.open(job.input, clip.format); !opened)
    {
        result.failed = about(job.input, opened.error());
        return result;
    }
    // plan_grade has found the pattern, so there is one.
    const frame_pattern names = *find_frame_pattern(job.output);
    const std::uint64_t all = reader.info().frames;
    const auto first = static_cast<std::uint64_t>(plan.first_frame);
    const std::uint64_t last = plan.last_frame == 0 ? all : static_cast<std::uint64_t>(plan.last_frame);
    frame_progress progress(out, clip.progress, clip.is_terminal, job.input, last >= first ? last - first + 1 : 0);
    std::vector<media::clip_damage> damages;
    for (int number = 1; plan.last_frame == 0 || number <= plan.last_frame; ++number)
    {
        damages.clear();
        if (!reader.read_next(frame, damages))
            break;
        // Frames before the range are decoded in order: counting frames is exact where seeking by time is not.
        if (number < plan.first_frame)
            continue;
        for (const media::clip_damage& damage : damages)
            out.error({.subject = job.input, .reason = "frame " + std::to_string(number) + ": " + damage.reason});
        // A dry run looks at one frame only, so a count of damages would mislead.
        if (!settings.dry_run)
            result.damages += damages.size();
        const std::string name = names.name_of(number);
        std::error_code error;
        if (no_clobber && std::filesystem::exists(name, error))
            continue;
        if (!grade_frame(frame, {job.input, name, false}, settings, result) || settings.dry_run)
            return result;
        progress.step(++result.frames);
    }
    result.is_written = result.frames != 0;
    if (plan.last_frame != 0 && result.frames == 0 && !no_clobber)
        result.failed = failure{failure_kind::unreadable, job.input, "the clip has no frames in this range"};
    return result;
}

} // namespace ov1

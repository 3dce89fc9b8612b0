#include "standalone/jobs/clip_job.h"

#include "command_line/frame_progress.h"
#include "media/clips/clip_source.h"
#include "media/clips/clip_target.h"
#include "media/clips/grade_clip.h"
#include "platform/pending_file.h"
#include "standalone/jobs/threaded_pieces.h"

#include <cmath>

namespace ov1
{

namespace
{

// A clip that is damaged throughout would fill the terminal; the rest is counted in one line.
constexpr std::size_t most_damages_listed = 20;

/// The result with its failure, keeping what was found out before.
clip_result failed(clip_result result, failure why)
{
    result.failed = std::move(why);
    return result;
}

/// "0:04.120".
std::string time_text(double seconds)
{
    const auto milliseconds = static_cast<std::uint64_t>(std::llround(std::max(0.0, seconds) * 1000));
    // Adding 1000 keeps the leading zeros; the first digit is cut off.
    const std::string part = std::to_string(milliseconds % 1000 + 1000);
    return duration_text(static_cast<double>(milliseconds / 1000)) + '.' + part.substr(1);
}

/// Prints the first damaged parts of a clip, and counts all of them.
/// The destructor prints how many were left out of the list.
class damage_reporter
{
public:
    damage_reporter(const std::string& input, console& out)
        : input(input)
        , out(out)
    {
    }
    ~damage_reporter()
    {
        if (count > most_damages_listed)
            out.error({.subject = input,
                       .reason = std::to_string(count - most_damages_listed) + " more damaged frames are not listed"});
    }

    void report(const media::clip_damage& damage)
    {
        if (++count <= most_damages_listed)
            out.error({.subject = input, .reason = "at " + time_text(damage.time_s) + ": " + damage.reason});
    }

    std::size_t count = 0;

private:
    const std::string& input;
    console& out;
};

/// Also sets the frames and damages of the result.
result<> write_clip(media::clip_source& source, media::clip_target& target, const output_job& job,
                    const clip_settings& settings, console& out, clip_result& written)
{
    // Declared before everything that writes to it: on a failure its destructor removes the unfinished file last.
    pending_file file;
    const auto rule = settings.overwrite ? existing_file::replace : existing_file::refuse;
    if (const auto opened = file.open(job.output, rule); !opened)
        return about(job.output, opened.error());
    frame_progress progress(out, settings.progress, settings.is_terminal, job.input, source.get_info().frames);
    damage_reporter damages(job.input, out);
    media::clip_hooks hooks;
    hooks.grade = settings.grade;
    hooks.run = run_on_threads(settings.threads);
    hooks.on_frame = [&](std::uint64_t frames) { progress.step(written.frames = frames); };
    hooks.on_damage = [&](const media::clip_damage& damage) { damages.report(damage); };
    const auto graded = media::grade_clip(source, target, file.get_descriptor(), hooks);
    written.damages = damages.count;
    if (!graded)
        // Whether the input or the output is at fault follows from the kind alone.
        return about(graded.error().kind == failure_kind::cannot_write ? job.output : job.input, graded.error());
    if (const auto committed = file.commit(); !committed)
        return about(job.output, committed.error());
    return {};
}

} // namespace

// The format is settled before any frame is graded: a dry run stops there, and a real run fails early.
clip_result grade_clip_file(const output_job& job, const clip_settings& settings, console& out)
{
    clip_result result;
    media::clip_source source;
    media::clip_target target;
    if (const auto opened = source.open(job.input, settings.threads); !opened)
        return failed(std::move(result), about(job.input, opened.error()));
    if (const auto created = target.create(source, job.output, settings.format); !created)
        return failed(std::move(result), about(job.output, created.error()));
    for (const std::string& warning : target.get_warnings())
        result.warnings.push_back({.subject = job.output, .reason = warning});
    result.written = target.get_info();
    result.streams = target.get_streams();
    if (settings.dry_run)
        return result;
    if (auto done = write_clip(source, target, job, settings, out, result); !done)
        return failed(std::move(result), std::move(done).error());
    result.is_written = true;
    return result;
}

} // namespace ov1

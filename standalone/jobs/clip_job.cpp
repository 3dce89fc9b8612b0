#include "standalone/jobs/clip_job.h"

#include "command_line/frame_progress.h"
#include "media/clips/clip_source.h"
#include "media/clips/clip_target.h"
#include "media/clips/grade_clip.h"
#include "platform/pending_file.h"
#include "platform/rows.h"
#include "standalone/jobs/media_problem.h"

#include <cmath>

namespace ov1
{

namespace
{

constexpr std::size_t most_damages_told = 20;

clip_result failed(clip_result result, problem why)
{
    result.failure = std::move(why);
    result.code = result.failure.code;
    return result;
}

/// "0:04.120".
std::string time_text(double seconds)
{
    const auto milliseconds = static_cast<std::uint64_t>(std::llround(std::max(0.0, seconds) * 1000));
    const std::string part = std::to_string(milliseconds % 1000 + 1000);
    return duration_text(static_cast<double>(milliseconds / 1000)) + '.' + part.substr(1);
}

class damage_teller
{
public:
    damage_teller(const std::string& input, console& out)
        : input(input)
        , out(out)
    {
    }
    ~damage_teller()
    {
        if (count > most_damages_told)
            out.error({exit_code::some_failed,
                       input,
                       std::to_string(count - most_damages_told) + " more damaged frames are not listed",
                       {}});
    }

    void tell(const media::clip_damage& damage)
    {
        if (++count <= most_damages_told)
            out.error({exit_code::some_failed, input, "at " + time_text(damage.time_s) + ": " + damage.reason, {}});
    }

    std::size_t count = 0;

private:
    const std::string& input;
    console& out;
};

void run_pieces(std::size_t pieces, unsigned int threads, const std::function<void(std::size_t)>& work)
{
    for_each_row_piece(pieces, 1, threads,
                       [&](std::size_t first, std::size_t end)
                       {
                           for (std::size_t piece = first; piece < end; ++piece)
                               work(piece);
                       });
}

bool write_clip(media::clip_source& source, media::clip_target& target, const output_job& job,
                const clip_settings& settings, console& out, clip_result& result)
{
    problem& why = result.failure;
    why = {exit_code::cannot_write, job.output, {}, {}};
    pending_file file;
    const auto done = [&](const ov1::result<>& outcome)
    {
        if (!outcome)
            why.reason = outcome.error().reason;
        return static_cast<bool>(outcome);
    };
    if (!done(file.open(job.output, settings.overwrite ? existing_file::replace : existing_file::refuse)))
        return false;
    frame_progress progress(out, settings.progress, settings.is_terminal, job.input, source.get_info().frames);
    damage_teller damages(job.input, out);
    media::clip_hooks hooks;
    hooks.grade = settings.grade;
    hooks.run = [&](std::size_t pieces, const std::function<void(std::size_t)>& work)
    { run_pieces(pieces, settings.threads, work); };
    hooks.on_frame = [&](std::uint64_t frames) { progress.step(result.frames = frames); };
    hooks.on_damage = [&](const media::clip_damage& damage) { damages.tell(damage); };
    const auto graded = media::grade_clip(source, target, file.get_descriptor(), hooks);
    result.damages = damages.count;
    if (!graded)
    {
        const bool is_outputs = graded.error().kind == failure_kind::cannot_write;
        why = problem_of(graded.error(), is_outputs ? job.output : job.input);
        return false;
    }
    return done(file.commit());
}

} // namespace

clip_result grade_clip_file(const output_job& job, const clip_settings& settings, console& out)
{
    clip_result result;
    media::clip_source source;
    media::clip_target target;
    if (const auto opened = source.open(job.input, settings.threads); !opened)
        return failed(std::move(result), problem_of(opened.error(), job.input));
    if (const auto created = target.create(source, job.output, settings.format); !created)
        return failed(std::move(result), problem_of(created.error(), job.output));
    for (const std::string& warning : target.get_warnings())
        result.warnings.push_back({exit_code::done, job.output, warning, {}});
    result.written = target.get_info();
    result.streams = target.get_streams();
    if (settings.dry_run)
        return result;
    if (!write_clip(source, target, job, settings, out, result))
    {
        result.code = result.failure.code;
        return result;
    }
    result.is_written = true;
    if (result.damages != 0)
        result.code = exit_code::some_failed;
    return result;
}

} // namespace ov1

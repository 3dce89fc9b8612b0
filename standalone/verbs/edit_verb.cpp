#include "standalone/verbs/edit_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/output_plan.h"
#include "command_line/program.h"
#include "command_line/run_options.h"
#include "framework/chost_v1.h"
#include "framework/editor_session.h"
#include "platform/user_environment.h"
#include "standalone/jobs/edit_picture.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/grade_steps.h"
#include "standalone/jobs/grade_text.h"
#include "standalone/jobs/job_report.h"

#include <atomic>
#include <optional>
#include <unistd.h>
#include <utility>

namespace ov1
{

namespace
{

/// The arguments of the verb.
struct edit_command
{
    grade_request grade;
    run_options run;
    std::vector<std::string> inputs;
    std::optional<std::string> output;
    output_plan plan;
};

/// Uses the language of the desktop, and records whether the user discarded the grade.
class edit_host : public chost_v1
{
public:
    using chost_v1::chost_v1;

    language_id get_language() const override { return read_user_environment().language; }
    void notify(event e) override
    {
        if (e.type == event_kind::cancelled)
            discarded = true;
        chost_v1::notify(e);
    }
    bool is_discarded() const { return discarded; }

private:
    // Set by the editor, read after the session; the host may be notified on any thread.
    std::atomic<bool> discarded = false;
};

std::optional<exit_code> parse(edit_command& command, std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial edit",
                           "Opens the editor on a picture or a clip. When it is closed, prints the grade as options "
                           "and writes the output.",
                           "  veridial edit photo.jpg -o out.png\n"
                           "  veridial edit photo.jpg -p \"Golden Hour\" -o out.jpg -f\n");
    parser.positionals("INPUT", command.inputs, "a picture or a clip; without one, the editor shows a colour chart");
    add_grade_options(parser, command.grade);
    parser.group("Output");
    parser.text("-o,--output", command.output, "OUT", "file for the graded picture or clip");
    add_run_options(parser, command.run);
    const auto settle = [&](option_reader& reader)
    {
        settle_run_options(command.run, out, reader);
        if (command.inputs.size() > 1)
            reader.refuse(command.inputs[1].c_str(), "only one picture or clip can be edited at a time");
        if (command.output && command.inputs.empty())
            reader.refuse("-o", "needs an input");
    };
    if (const auto end = parse_or_explain(parser, arguments, out, settle))
        return end;
    if (!command.output)
        return {};
    // Checked before the editor opens: work in the editor must not be lost to a bad output. Skipping makes no sense
    // here.
    const output_rules rules{.overwrite = command.run.overwrite, .can_skip = false};
    if (const auto failures = plan_outputs(command.inputs, *command.output, rules, command.plan); !failures.empty())
        return fail(failures, out);
    return {};
}

/// Writes what the plan holds; one job, or none without -o.
exit_code write_outputs(const edit_command& command, bool is_clip, effect_instance& effect, console& out)
{
    const grade_steps steps{nullptr, effect.get_renderer()};
    const auto threads = static_cast<unsigned int>(command.run.threads);
    for (const output_job& job : command.plan.jobs)
    {
        exit_code code = exit_code::done;
        if (is_clip)
        {
            const clip_result result = grade_clip_file(job,
                                                       {.grade = steps.for_clips(),
                                                        .overwrite = command.run.overwrite,
                                                        .dry_run = command.run.dry_run,
                                                        .threads = threads,
                                                        .progress = command.run.progress,
                                                        .is_terminal = isatty(STDERR_FILENO) != 0},
                                                       out);
            report_clip(job, result, command.run, out);
            code = result.code();
        }
        else
        {
            const picture_result result = grade_picture(job, {.grade = steps.for_stills(),
                                                              .overwrite = command.run.overwrite,
                                                              .dry_run = command.run.dry_run,
                                                              .threads = threads});
            report_picture(job, result, command.run, out);
            code = result.code();
        }
        if (code != exit_code::done)
            return code;
    }
    return exit_code::done;
}

/// Runs the editor session until its window is closed.
result<> edit(effect_instance& effect, edit_picture& picture, const editor_opener& open_editor, console& out)
{
    // Declared first, so that the toolkit outlives the session and its windows.
    const auto editor = open_editor();
    editor_session session(effect.share());
    session.set_picture(picture.get_source(), picture.get_destination());
    editor_session_options options;
    options.frame_count = picture.get_frame_count();
    // A drag of the slider may choose several frames in one round of the event loop: only the last one is read.
    std::optional<int> wanted_frame;
    options.frame_chosen = [&](int frame) { wanted_frame = frame; };
    options.pump = [&]
    {
        // Cleared before reading: a choice made while the frame is read is handled in the next round.
        const auto frame = std::exchange(wanted_frame, {});
        if (!frame)
            return;
        if (const auto read = picture.read_frame(*frame); !read)
            return out.warning(read.error());
        session.set_picture(picture.get_source(), picture.get_destination());
    };
    if (session.run(options))
        return {};
    return failure{failure_kind::unsupported, "edit", "cannot open a window",
                   "an X server is needed; DISPLAY names it"};
}

} // namespace

exit_code run_edit(std::span<const std::string> arguments, console& out, const editor_opener& open_editor)
{
    edit_command command;
    if (const auto end = parse(command, arguments, out))
        return *end;

    std::shared_ptr<edit_host> host;
    effect_instance effect([&](std::weak_ptr<icomponent_v1> component)
                           { return host = std::make_shared<edit_host>(std::move(component)); });
    if (const auto failures = effect.apply(command.grade); !failures.empty())
        return fail(failures, out);
    edit_picture picture;
    if (!command.inputs.empty())
        if (const auto opened = picture.open(command.inputs[0]); !opened)
            return fail(opened.error(), out);
    if (const auto edited = edit(effect, picture, open_editor, out); !edited)
        return fail(edited.error(), out);
    // The user decided against the grade, as with an interrupt: scripts see the same code.
    if (host->is_discarded())
        return exit_code::interrupted;
    // The last drag may have left the table out of date.
    effect.get().notify({event_kind::render_begins});
    const auto values = effect.get_values();
    out.result((command.run.json ? grade_json(values, false) : grade_options(values)) + '\n');
    return write_outputs(command, picture.is_clip(), effect, out);
}

} // namespace ov1

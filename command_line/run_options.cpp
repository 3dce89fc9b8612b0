#include "command_line/run_options.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/number.h"
#include "command_line/program.h"

namespace ov1
{

namespace
{

// Far above any sensible number; it catches typing mistakes before the system refuses.
constexpr int most_threads = 1024;

constexpr std::array<choice<progress_style>, 4> progress_styles{{
    {"auto", progress_style::automatic},
    {"plain", progress_style::plain},
    {"json", progress_style::json},
    {"none", progress_style::none},
}};

} // namespace

void add_run_options(argument_parser& parser, run_options& options)
{
    parser.group("Run");
    parser.flag("-f,--overwrite", options.overwrite, "replace existing outputs");
    parser.flag("-n,--no-clobber", options.no_clobber, "keep existing outputs and skip their inputs");
    parser.text("-j,--threads", options.threads_text, "N", "number of threads; 0, the default, uses all processors");
    parser.flag("--dry-run", options.dry_run, "show what would be done, and write nothing");
    parser.flag("--json", options.json, "print results as JSON");
    parser.text("--progress", options.progress_text, choice_names(progress_styles), "how to report progress");
    parser.flag("-q,--quiet", options.quiet, "print errors only");
    parser.flag("-v,--verbose", options.verbose, "print more");
}

void settle_run_options(run_options& options, console& out, option_reader& reader)
{
    reader.read("--threads", options.threads_text, options.threads,
                [](const std::string& text) { return read_whole_number_within(text, 0, most_threads); });
    reader.read("--progress", options.progress_text, options.progress,
                [](const std::string& text) { return read_choice(text, progress_styles); });
    if (options.overwrite && options.no_clobber)
        reader.refuse("--overwrite", "cannot be combined with --no-clobber");
    if (options.quiet && options.verbose)
        reader.refuse("--quiet", "cannot be combined with --verbose");
    // Set even where options were refused: errors are printed in any case.
    out.set_quiet(options.quiet);
    out.set_verbose(options.verbose);
}

output_rules rules_of(const run_options& options)
{
    return {.overwrite = options.overwrite, .no_clobber = options.no_clobber, .dry_run = options.dry_run};
}

std::optional<exit_code> plan_single_output(const std::string& path, const run_options& options, console& out,
                                            std::vector<failure> found)
{
    const auto job = plan_output(path, rules_of(options));
    if (!job)
        found.push_back(job.error());
    if (!found.empty())
        return fail(found, out);
    if (!job->skipped)
        return {};
    note_skipped(path, out);
    return exit_code::done;
}

void note_skipped(const std::string& output, console& out) { out.note(output + " already exists, skipped"); }

} // namespace ov1

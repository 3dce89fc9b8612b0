#include "command_line/run_options.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/number.h"

namespace ov1
{

namespace
{

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
    parser.flag("-n,--no-clobber", options.no_clobber, "leave existing outputs as they are and go on");
    parser.text("-j,--threads", options.threads_text, "N", "how many threads work; 0, the default, for all");
    parser.flag("--dry-run", options.dry_run, "say what would be done, and write nothing");
    parser.flag("--json", options.json, "results as JSON");
    parser.text("--progress", options.progress_text, choice_names(progress_styles), "how to tell what is done so far");
    parser.flag("-q,--quiet", options.quiet, "errors only");
    parser.flag("-v,--verbose", options.verbose, "say more");
}

bool settle_run_options(run_options& options, console& out, std::vector<problem>& problems)
{
    const std::size_t before = problems.size();
    problem why{exit_code::usage, "--threads", {}, {}};
    if (options.threads_text && !read_whole_number_within(*options.threads_text, 0, most_threads, options.threads, why))
        problems.push_back(why);
    why = {exit_code::usage, "--progress", {}, {}};
    if (options.progress_text && !read_choice(*options.progress_text, progress_styles, options.progress, why))
        problems.push_back(why);
    if (options.overwrite && options.no_clobber)
        problems.push_back({exit_code::usage, "--overwrite", "cannot go with --no-clobber", "leave one out"});
    if (options.quiet && options.verbose)
        problems.push_back({exit_code::usage, "--quiet", "cannot go with --verbose", "leave one out"});
    out.set_quiet(options.quiet);
    out.set_verbose(options.verbose);
    return problems.size() == before;
}

} // namespace ov1

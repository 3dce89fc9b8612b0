// Options on how a command runs: overwriting, threads, messages.
#pragma once

#include "command_line/exit_code.h"
#include "command_line/option_reader.h"
#include "command_line/output_plan.h"
#include "command_line/progress.h"

#include <optional>
#include <string>
#include <vector>

namespace ov1
{

class argument_parser;
class console;

/// The values, and the texts of those options that need checking. Valid after settle_run_options.
struct run_options
{
    bool overwrite = false;
    bool no_clobber = false; ///< existing outputs are kept without an error
    bool dry_run = false;
    bool json = false;
    bool quiet = false;
    bool verbose = false;
    int threads = 0; ///< 0 for one per processor
    progress_style progress = progress_style::automatic;

    std::optional<std::string> threads_text;
    std::optional<std::string> progress_text;
};

/// Declares the options under the heading "Run". They must outlive the parser.
void add_run_options(argument_parser& parser, run_options& options);

/// Reads the texts into the values, refuses options that exclude each other, and sets how much the console prints.
/// Call it once, after parsing and before anything is printed.
void settle_run_options(run_options& options, console& out, option_reader& reader);

/// What the options say about existing outputs.
output_rules rules_of(const run_options& options);

/// Plans the output of a verb that writes one file. Where there is nothing to write, prints the failures, those that
/// the caller found first, or notes that an existing file is kept, and returns the exit code.
[[nodiscard]] std::optional<exit_code> plan_single_output(const std::string& path, const run_options& options,
                                                          console& out, std::vector<failure> found = {});

/// Notes, with --verbose, that an existing output is kept.
void note_skipped(const std::string& output, console& out);

} // namespace ov1

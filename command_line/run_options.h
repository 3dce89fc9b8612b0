// Options on how a command runs: overwriting, threads, messages.
#pragma once

#include "command_line/option_reader.h"
#include "command_line/progress.h"

#include <optional>
#include <string>

namespace ov1
{

class argument_parser;
class console;

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
void settle_run_options(run_options& options, console& out, option_reader& reader);

} // namespace ov1

// How a command is to run: overwriting, threads, messages.
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
    bool no_clobber = false; ///< existing outputs are left, and are no error
    bool dry_run = false;
    bool json = false;
    bool quiet = false;
    bool verbose = false;
    int threads = 0; ///< 0 for as many as the machine has
    progress_style progress = progress_style::automatic;

    std::optional<std::string> threads_text;
    std::optional<std::string> progress_text;
};

/// Declares all of them under the heading "Run". The options must outlive the parsing.
void add_run_options(argument_parser& parser, run_options& options);

/// Reads the texts into the numbers, refuses options that exclude each other, and tells the console how much to print.
void settle_run_options(run_options& options, console& out, option_reader& reader);

} // namespace ov1

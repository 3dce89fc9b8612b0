// The program around its commands.
#pragma once

#include "command_line/exit_code.h"

#include <span>
#include <string>

namespace ov1
{

class argument_parser;
class console;
struct problem;

/// A command such as "grade". Each has a file of its own, with one function that gives it.
struct verb
{
    const char* name;
    const char* summary; ///< one line for the program's help
    /// Gets the arguments behind the name.
    exit_code (*run)(std::span<const std::string> arguments, console& out);
};

/// Finds the verb and runs it, or answers --help and --version. The first argument is the verb's name.
exit_code run_program(std::span<const std::string> arguments, std::span<const verb> verbs, console& out);

/// A verb that has verbs of its own: runs the one that the first argument names, or shows all of them.
exit_code run_verbs(const std::string& command, const std::string& summary, std::span<const std::string> arguments,
                    std::span<const verb> verbs, console& out);

/// Parses a verb's arguments. True if there is something to run; otherwise the code is what the verb ends with, and the
/// help or the mistake has been told.
[[nodiscard]] bool parse_or_explain(argument_parser& parser, std::span<const std::string> arguments, console& out,
                                    exit_code& code);

/// Tells all problems and gives the code of the first.
exit_code fail(std::span<const problem> problems, console& out);

} // namespace ov1

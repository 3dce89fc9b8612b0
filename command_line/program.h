// The program around its commands.
#pragma once

#include "command_line/exit_code.h"

#include <optional>
#include <span>
#include <string>

namespace ov1
{

class argument_parser;
class console;

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

/// Parses a verb's arguments. Where there is nothing to run, prints the help or the mistake and returns the code that
/// the verb ends with.
[[nodiscard]] std::optional<exit_code> parse_or_explain(argument_parser& parser, std::span<const std::string> arguments,
                                                        console& out);

/// Prints the failure and returns its code.
exit_code fail(const failure& why, console& out);

/// Prints all failures and returns the code of the first; done where there is none.
exit_code fail(std::span<const failure> failures, console& out);

} // namespace ov1

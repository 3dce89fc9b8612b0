// Runs the commands of a program.
#pragma once

#include "command_line/exit_code.h"

#include <functional>
#include <optional>
#include <span>
#include <string>

namespace ov1
{

class argument_parser;
class console;
class option_reader;

/// A command, such as "grade".
struct verb
{
    const char* name;
    const char* summary; ///< one line for the program's help
    /// Receives the arguments after the name.
    /// It prints its own failures and does not finish the console. The arguments must outlive the call only.
    exit_code (*run)(std::span<const std::string> arguments, console& out);
};

/// Runs the verb that the first argument names, or answers --help and --version.
/// Finishes the console and returns the code that the process ends with.
exit_code run_program(std::span<const std::string> arguments, std::span<const verb> verbs, console& out);

/// The same for a verb with verbs of its own, without --version.
/// An unknown verb is a usage failure with a similar one as its hint; `command` is what the user typed before it.
exit_code run_verbs(const std::string& command, const std::string& summary, std::span<const std::string> arguments,
                    std::span<const verb> verbs, console& out);

/// Parses a verb's arguments. Where there is nothing to run, prints the help or the failure and returns the exit code.
[[nodiscard]] std::optional<exit_code> parse_or_explain(argument_parser& parser, std::span<const std::string> arguments,
                                                        console& out);

/// The same, and then lets `settle` read the texts of the options. What it refuses is printed too.
[[nodiscard]] std::optional<exit_code> parse_or_explain(argument_parser& parser, std::span<const std::string> arguments,
                                                        console& out,
                                                        const std::function<void(option_reader&)>& settle);

/// Prints the failure and returns its code.
exit_code fail(const failure& why, console& out);

/// Prints all failures and returns the code of the first; done where there is none.
exit_code fail(std::span<const failure> failures, console& out);

} // namespace ov1

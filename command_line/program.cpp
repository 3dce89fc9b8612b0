#include "command_line/program.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/edit_distance.h"
#include "command_line/option_reader.h"
#include "shared/version.h"

#include <algorithm>

namespace ov1
{

namespace
{

// Wide enough for the longest verb of the programs, with a gap.
constexpr std::size_t summary_column = 12;

std::string verbs_help(const std::string& command, const std::string& summary, std::span<const verb> verbs)
{
    std::string text = summary + "\nUsage: " + command + " COMMAND [OPTIONS]...\n\nCommands:\n";
    for (const verb& v : verbs)
    {
        std::string name = v.name;
        name.resize(std::max(summary_column, name.size() + 1), ' ');
        text += "  " + name + v.summary + '\n';
    }
    return text += "\n\"" + command + " COMMAND --help\" shows the options of a command.\n";
}

std::string version_line()
{
    return "veridial " + std::to_string(product_version.major) + '.' + std::to_string(product_version.minor) + '.' +
           std::to_string(product_version.patch) + '\n';
}

/// An option in the first place is most likely a forgotten command, not a misspelt one.
failure no_such_verb(const std::string& command, const std::string& name, std::span<const verb> verbs)
{
    std::vector<std::string> names;
    for (const verb& v : verbs)
        names.emplace_back(v.name);
    const std::string near = did_you_mean(name, names);
    const bool is_option = name.starts_with('-');
    return {failure_kind::usage, name, is_option ? "a command must come first" : "no such command",
            near.empty() || is_option ? "\"" + command + " --help\" lists them" : near};
}

} // namespace

exit_code run_verbs(const std::string& command, const std::string& summary, std::span<const std::string> arguments,
                    std::span<const verb> verbs, console& out)
{
    if (arguments.empty())
        return fail(failure{failure_kind::usage, {}, "no command given", "\"" + command + " --help\" lists them"}, out);
    // "help" without dashes is accepted as well, as in many programs with commands.
    const std::string& name = arguments[0];
    if (name == "--help" || name == "-h" || name == "help")
    {
        out.result(verbs_help(command, summary, verbs));
        return exit_code::done;
    }
    const auto found = std::find_if(verbs.begin(), verbs.end(), [&](const verb& v) { return name == v.name; });
    if (found != verbs.end())
        return found->run(arguments.subspan(1), out);
    return fail(no_such_verb(command, name, verbs), out);
}

exit_code run_program(std::span<const std::string> arguments, std::span<const verb> verbs, console& out)
{
    // finish() comes last on every path: results that were lost, on a full disk for example, must change the code.
    exit_code code = exit_code::done;
    if (!arguments.empty() && arguments[0] == "--version")
        out.result(version_line());
    else
        code = run_verbs("veridial", "Veridial: colour grading for pictures and clips.", arguments, verbs, out);
    return out.finish(code);
}

std::optional<exit_code> parse_or_explain(argument_parser& parser, std::span<const std::string> arguments, console& out)
{
    const auto parsed = parser.parse(arguments);
    if (!parsed)
        return fail(parsed.error(), out);
    if (*parsed == argument_parser::outcome::run)
        return {};
    out.result(parser.help_text());
    return exit_code::done;
}

std::optional<exit_code> parse_or_explain(argument_parser& parser, std::span<const std::string> arguments, console& out,
                                          const std::function<void(option_reader&)>& settle)
{
    if (const auto end = parse_or_explain(parser, arguments, out))
        return end;
    option_reader reader;
    settle(reader);
    if (const auto failures = reader.take_failures(); !failures.empty())
        return fail(failures, out);
    return {};
}

exit_code fail(const failure& why, console& out)
{
    out.error(why);
    return exit_code_of(why);
}

exit_code fail(std::span<const failure> failures, console& out)
{
    for (const failure& why : failures)
        out.error(why);
    return exit_code_of(failures);
}

} // namespace ov1

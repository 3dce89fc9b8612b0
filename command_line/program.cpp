#include "command_line/program.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/edit_distance.h"
#include "shared/version.h"

#include <algorithm>

namespace ov1
{

namespace
{

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
    return text += "\n\"" + command + " COMMAND --help\" tells what a command takes.\n";
}

std::string version_line()
{
    return "veridial " + std::to_string(product_version.major) + '.' + std::to_string(product_version.minor) + '.' +
           std::to_string(product_version.patch) + '\n';
}

problem no_such_verb(const std::string& command, const std::string& name, std::span<const verb> verbs)
{
    std::vector<std::string> names;
    for (const verb& v : verbs)
        names.emplace_back(v.name);
    const std::string near = did_you_mean(name, names);
    const bool is_option = name.starts_with('-');
    return {exit_code::usage, name, is_option ? "a command comes first" : "no such command",
            near.empty() || is_option ? "\"" + command + " --help\" lists them" : near};
}

} // namespace

exit_code run_verbs(const std::string& command, const std::string& summary, std::span<const std::string> arguments,
                    std::span<const verb> verbs, console& out)
{
    if (arguments.empty())
    {
        out.error({exit_code::usage, {}, "no command", "\"" + command + " --help\" lists them"});
        return exit_code::usage;
    }
    const std::string& name = arguments[0];
    if (name == "--help" || name == "-h" || name == "help")
    {
        out.result(verbs_help(command, summary, verbs));
        return exit_code::done;
    }
    const auto found = std::find_if(verbs.begin(), verbs.end(), [&](const verb& v) { return name == v.name; });
    if (found != verbs.end())
        return found->run(arguments.subspan(1), out);
    out.error(no_such_verb(command, name, verbs));
    return exit_code::usage;
}

exit_code run_program(std::span<const std::string> arguments, std::span<const verb> verbs, console& out)
{
    exit_code code = exit_code::done;
    if (!arguments.empty() && arguments[0] == "--version")
        out.result(version_line());
    else
        code = run_verbs("veridial", "Veridial grades pictures.", arguments, verbs, out);
    return out.finish() || code != exit_code::done ? code : exit_code::cannot_write;
}

bool parse_or_explain(argument_parser& parser, std::span<const std::string> arguments, console& out, exit_code& code)
{
    problem why;
    switch (parser.parse(arguments, why))
    {
    case argument_parser::outcome::run:
        return true;
    case argument_parser::outcome::help:
        out.result(parser.help_text());
        code = exit_code::done;
        break;
    case argument_parser::outcome::wrong:
        out.error(why);
        code = why.code;
        break;
    }
    return false;
}

exit_code fail(std::span<const problem> problems, console& out)
{
    for (const problem& p : problems)
        out.error(p);
    return problems.empty() ? exit_code::done : problems[0].code;
}

} // namespace ov1

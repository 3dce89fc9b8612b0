#include "command_line/argument_parser.h"

#include "command_line/edit_distance.h"

#include <CLI/CLI.hpp>

namespace ov1
{

struct argument_parser::implementation
{
    CLI::App app;
    std::string group = "Options";
    std::string command;

    /// Puts an option under the current heading of the help.
    CLI::Option* shown(CLI::Option* option, const std::string& placeholder) const
    {
        return option->group(group)->option_text(placeholder);
    }

    /// The long names, with their dashes, as candidates for a suggestion.
    std::vector<std::string> option_names() const
    {
        std::vector<std::string> names;
        for (const CLI::Option* option : app.get_options())
            for (const std::string& name : option->get_lnames())
                names.push_back("--" + name);
        return names;
    }

    /// The first argument that no option takes.
    failure unexpected() const
    {
        const std::vector<std::string> left = app.remaining();
        const std::string first = left.empty() ? std::string() : left.front();
        // "--size=3" is looked up as "--size".
        const std::string name = first.substr(0, first.find('='));
        const std::string all_help = "\"" + command + " --help\" lists the options";
        if (!name.starts_with('-'))
            return {failure_kind::usage, first, "unexpected argument", all_help};
        const std::string near = did_you_mean(name, option_names());
        return {failure_kind::usage, name, "no such option", near.empty() ? all_help : near};
    }
};

argument_parser::argument_parser(const std::string& command, const std::string& summary, const std::string& examples)
    : impl(std::make_unique<implementation>())
{
    impl->command = command;
    impl->app.name(command);
    impl->app.description(summary);
    impl->app.footer("Examples:\n" + examples);
    impl->app.set_help_flag(); // parse() declares it, so that its group comes last in the help
    impl->app.get_formatter()->label("Positionals", "Arguments");
}

argument_parser::~argument_parser() = default;

void argument_parser::group(const std::string& title) { impl->group = title; }

void argument_parser::flag(const std::string& names, bool& value, const std::string& help)
{
    impl->app.add_flag(names, value, help)
        ->group(impl->group)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast)
        ->disable_flag_override();
}

void argument_parser::text(const std::string& names, std::optional<std::string>& value, const std::string& placeholder,
                           const std::string& help)
{
    const auto take = [&value](const std::string& text) { value = text; };
    impl->shown(impl->app.add_option_function<std::string>(names, take, help), placeholder)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
}

void argument_parser::texts(const std::string& names, std::vector<std::string>& values, const std::string& placeholder,
                            const std::string& help)
{
    // allow_extra_args: an option that may be repeated would otherwise take all arguments after its value too.
    impl->shown(impl->app.add_option(names, values, help), placeholder)->allow_extra_args(false);
}

void argument_parser::positionals(const std::string& placeholder, std::vector<std::string>& values,
                                  const std::string& help)
{
    impl->app.add_option(placeholder, values, help)->option_text("...");
}

result<argument_parser::outcome> argument_parser::parse(std::span<const std::string> arguments)
{
    // In the group "Run", which the verbs declare last.
    impl->app.set_help_flag("-h,--help", "show this help and exit")->group("Run");
    try
    {
        // The library takes a vector from its end, so the first argument comes last.
        impl->app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        return outcome::run;
    }
    catch (const CLI::CallForHelp&)
    {
        return outcome::help;
    }
    catch (const CLI::ExtrasError&)
    {
        return impl->unexpected();
    }
    catch (const CLI::ArgumentMismatch& error)
    {
        // The library puts the option's name into the message and nowhere else.
        const std::string text = error.what();
        std::string name = text.substr(0, text.find_first_of(": "));
        if (!name.starts_with('-')) // the library names flags without their dashes
            name.insert(0, "--");
        // One exception class reports both mistakes; only its text tells them apart.
        const bool is_flag = text.find("flag override") != std::string::npos;
        return failure{failure_kind::usage, name, is_flag ? "takes no value" : "needs a value", {}};
    }
    catch (const CLI::Error& error)
    {
        return failure{failure_kind::usage, {}, error.what(), {}};
    }
}

std::string argument_parser::help_text() const
{
    std::string text = impl->app.help();
    // The library puts two blank lines between groups.
    for (auto at = text.find("\n\n\n"); at != std::string::npos; at = text.find("\n\n\n", at))
        text.erase(at, 1);
    return text;
}

} // namespace ov1

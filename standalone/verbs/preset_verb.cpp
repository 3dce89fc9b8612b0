#include "standalone/verbs/preset_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/edit_distance.h"
#include "command_line/json_text.h"
#include "command_line/option_reader.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/grade_text.h"
#include "standalone/jobs/preset_source.h"

#include <algorithm>
#include <array>

namespace ov1
{

namespace
{

/// The arguments of all actions except "list".
struct named_preset
{
    std::vector<std::string> names;
    bool json = false;
};

/// Parses an action that takes one name. Where there is nothing to run, the code that it ends with.
std::optional<exit_code> parse_named(argument_parser& parser, named_preset& preset,
                                     std::span<const std::string> arguments, console& out)
{
    parser.positionals("NAME", preset.names, "name of the preset");
    const auto settle = [&](option_reader& reader)
    {
        if (preset.names.size() != 1)
            reader.refuse("NAME", "exactly one preset is required", "\"veridial preset list\" shows them");
    };
    return parse_or_explain(parser, arguments, out, settle);
}

exit_code list(std::span<const std::string> arguments, console& out)
{
    bool json = false;
    argument_parser parser("veridial preset list", "Lists the presets: your own, and those bundled with Veridial.",
                           "  veridial preset list\n");
    parser.flag("--json", json, "print JSON");
    if (const auto end = parse_or_explain(parser, arguments, out))
        return *end;
    effect_instance effect;
    const auto listing = list_presets(effect.get_presets());
    if (!listing)
        return fail(listing.error(), out);

    json_text text;
    text.begin_object().key("own").begin_array();
    for (const std::string& name : listing->own)
        text.value(name);
    text.end().key("bundled").begin_array();
    for (const std::string& name : listing->bundled)
        text.value(name);
    text.end().end();
    std::string lines;
    for (const std::string& name : listing->own)
        lines += name + '\n';
    for (const std::string& name : listing->bundled)
        lines += name + " (bundled)\n";
    out.result(json ? text.text() + '\n' : lines);
    return exit_code::done;
}

exit_code show(std::span<const std::string> arguments, console& out)
{
    named_preset preset;
    argument_parser parser("veridial preset show",
                           "Prints the parameters that a preset sets, in the form that -s takes.",
                           "  veridial preset show \"Golden Hour\"\n");
    parser.flag("--json", preset.json, "print all parameters as a JSON object");
    if (const auto end = parse_named(parser, preset, arguments, out))
        return *end;
    effect_instance effect;
    grade_request request;
    request.presets = preset.names;
    if (const auto failures = effect.apply(request); !failures.empty())
        return fail(failures, out);
    const auto values = effect.get_values();
    out.result(preset.json ? grade_json(values, true) + '\n' : grade_lines(values));
    return exit_code::done;
}

exit_code save(std::span<const std::string> arguments, console& out)
{
    named_preset preset;
    grade_request grade;
    bool overwrite = false;
    argument_parser parser("veridial preset save", "Saves a grade as a user preset.",
                           "  veridial preset save \"Cool shadows\" --wheel shadows=205,38\n");
    add_grade_options(parser, grade);
    parser.group("Output");
    parser.flag("-f,--overwrite", overwrite, "replace an existing preset of this name");
    if (const auto end = parse_named(parser, preset, arguments, out))
        return *end;
    effect_instance effect;
    if (const auto failures = effect.apply(grade); !failures.empty())
        return fail(failures, out);
    const std::string& name = preset.names[0];
    // The name is checked before any file is touched.
    preset_manager& presets = effect.get_presets();
    if (const auto accepted = check_preset_name(name); !accepted)
        return fail(about(name, accepted.error()), out);
    if (!overwrite && presets.preset_exists(name))
        return fail({failure_kind::cannot_write, name, "already exists", "use -f to replace it"}, out);
    if (!presets.save_preset(name, overwrite))
        return fail({failure_kind::cannot_write, name, presets.get_failure()->reason}, out);
    return exit_code::done;
}

/// Goes as far as loading would, and leaves the effect unchanged.
exit_code load_check(std::span<const std::string> arguments, console& out)
{
    named_preset preset;
    argument_parser parser("veridial preset load-check", "Checks whether a preset or a preset file can be loaded.",
                           "  veridial preset load-check grade.json\n");
    if (const auto end = parse_named(parser, preset, arguments, out))
        return *end;
    effect_instance effect;
    auto content = read_preset(effect.get_presets(), preset.names[0]);
    if (!content)
        return fail(content.error(), out);
    if (const auto accepted = check_preset(*content, effect.get()); !accepted)
        return fail(about(preset.names[0], accepted.error()), out);
    out.result(preset.names[0] + ": loads\n");
    return exit_code::done;
}

exit_code remove(std::span<const std::string> arguments, console& out)
{
    named_preset preset;
    argument_parser parser("veridial preset delete", "Deletes a user preset.",
                           "  veridial preset delete \"Cool shadows\"\n");
    if (const auto end = parse_named(parser, preset, arguments, out))
        return *end;
    effect_instance effect;
    const std::string& name = preset.names[0];
    const auto listing = list_presets(effect.get_presets());
    if (!listing)
        return fail(listing.error(), out);
    // The three cases are told apart, because "no such preset" would be wrong for a bundled one.
    const auto has = [&](const std::vector<std::string>& names)
    { return std::find(names.begin(), names.end(), name) != names.end(); };
    failure why{failure_kind::cannot_write, name};
    if (has(listing->own))
    {
        effect.get_presets().delete_preset(name);
        const auto& failed = effect.get_presets().get_failure();
        if (!failed)
            return exit_code::done;
        why.reason = failed->reason;
    }
    else if (has(listing->bundled))
        why.reason = "is a bundled preset and cannot be deleted";
    else
        why = {failure_kind::unreadable, name, "no such user preset", did_you_mean(name, listing->own)};
    return fail(why, out);
}

constexpr std::array<verb, 5> actions{{{"list", "lists the presets", list},
                                       {"show", "prints the parameters that a preset sets", show},
                                       {"save", "saves a grade as a user preset", save},
                                       {"load-check", "checks whether a preset can be loaded", load_check},
                                       {"delete", "deletes a user preset", remove}}};

} // namespace

exit_code run_preset(std::span<const std::string> arguments, console& out)
{
    return run_verbs("veridial preset", "Manages presets.", arguments, actions, out);
}

} // namespace ov1

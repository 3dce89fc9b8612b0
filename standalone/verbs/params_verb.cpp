#include "standalone/verbs/params_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/json_text.h"
#include "command_line/number.h"
#include "shared/uid.h"
#include "standalone/jobs/effect_instance.h"

#include <fmt/format.h>

namespace ov1
{

namespace
{

std::string as_json(const std::vector<parameter_info>& table)
{
    json_text json;
    json.begin_array();
    for (const parameter_info& p : table)
    {
        json.begin_object().key("name").value(p.name);
        // The number under which a state blob stores this parameter.
        json.key("uid").value(std::size_t{make_uid(p.name)});
        if (p.type == param_type::boolean)
            json.key("type").value("boolean").key("default").value(p.default_value != 0.0);
        else
        {
            json.key("type").value("continuous").key("min").value(p.min).key("max").value(p.max);
            json.key("default").value(p.default_value);
        }
        json.end();
    }
    return json.end().text() + '\n';
}

std::string as_table(const std::vector<parameter_info>& table)
{
    std::string text = fmt::format("{:<24}{:>12}  {:<14}{}\n", "name", "uid", "range", "default");
    for (const parameter_info& p : table)
    {
        const bool is_switch = p.type == param_type::boolean;
        const std::string range = is_switch ? "off, on" : number_text(p.min) + " .. " + number_text(p.max);
        const std::string by_default =
            is_switch ? (p.default_value != 0.0 ? "on" : "off") : number_text(p.default_value);
        text += fmt::format("{:<24}{:>12}  {:<14}{}\n", p.name, make_uid(p.name), range, by_default);
    }
    return text;
}

} // namespace

exit_code run_params(std::span<const std::string> arguments, console& out)
{
    bool json = false;
    argument_parser parser("veridial params", "Lists the parameters that -s sets, with their ranges and defaults.",
                           "  veridial params\n  veridial params --json\n");
    parser.flag("--json", json, "print a JSON array");
    if (const auto end = parse_or_explain(parser, arguments, out))
        return *end;
    effect_instance effect;
    const auto& table = effect.get_parameters();
    out.result(json ? as_json(table) : as_table(table));
    return exit_code::done;
}

} // namespace ov1

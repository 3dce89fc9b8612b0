#include "standalone/jobs/grade_text.h"

#include "command_line/json_text.h"
#include "command_line/number.h"

namespace ov1
{

namespace
{

/// Whether the value is a boolean, which options and JSON treat apart.
bool is_switch(const grade_value& v) { return v.type == param_type::boolean; }

/// Sky Angle=90.
std::string setting(const grade_value& v)
{
    return v.name + '=' + (is_switch(v) ? v.value != 0.0f ? "true" : "false" : number_text(v.value));
}

} // namespace

std::string grade_options(std::span<const grade_value> values)
{
    std::string options;
    for (const grade_value& v : values)
        if (!is_switch(v) && !v.is_default)
            options += (options.empty() ? "-s \"" : " -s \"") + setting(v) + '"';
    return options;
}

std::string grade_lines(std::span<const grade_value> values)
{
    std::string lines;
    for (const grade_value& v : values)
        if (!v.is_default)
            lines += setting(v) + '\n';
    return lines;
}

std::string grade_json(std::span<const grade_value> values, bool with_switches)
{
    json_text json;
    json.begin_object();
    for (const grade_value& v : values)
    {
        if (!is_switch(v))
            json.key(v.name).value(v.value);
        else if (with_switches)
            json.key(v.name).value(v.value != 0.0f);
    }
    return json.end().text();
}

} // namespace ov1

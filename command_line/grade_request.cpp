#include "command_line/grade_request.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/number.h"

#include <utility>

namespace ov1
{

namespace
{

/// The two parameters that one option sets.
struct pair_names
{
    const char* first;
    const char* second;
};

constexpr pair_names sky_names{"Sky Angle", "Sky Strength"};
constexpr pair_names greenery_names{"Greenery Angle", "Greenery Strength"};
constexpr pair_names skin_names{"Skin Angle", "Skin Tone Strength"};
constexpr pair_names film_names{"Film Contrast Angle", "Film Contrast Strength"};

/// The zones of --wheel, each with the two parameters of its wheel.
constexpr std::array<choice<pair_names>, 4> wheel_names{{
    {"shadows", {"Shadows Hue", "Shadows Chroma"}},
    {"mids", {"Mids Hue", "Mids Chroma"}},
    {"highlights", {"Highlights Hue", "Highlights Chroma"}},
    {"master", {"Master Hue", "Master Chroma"}},
}};

/// Turns options into assignments, and collects what is wrong with them.
/// A wrong option does not stop the others: all mistakes are reported together.
class grade_resolver
{
public:
    explicit grade_resolver(std::span<const parameter_info> table)
        : table(table)
    {
    }

    void set(std::string_view name, std::string_view text)
    {
        const auto read = read_assignment(name, text, table);
        if (!read)
            return refuse(read.error());
        resolved.assignments.push_back(*read);
    }

    /// Sets two parameters from "A,B". The form stands in the hint: a decimal comma is the usual mistake.
    void set_pair(const std::string& subject, const pair_names& names, std::string_view text, const char* form)
    {
        const std::size_t comma = text.find(',');
        if (comma == std::string_view::npos || text.find(',', comma + 1) != std::string_view::npos)
            return refuse({failure_kind::usage, subject, "needs two numbers separated by a comma",
                           "write " + std::string(form) + ", with decimal points"});
        set(names.first, text.substr(0, comma));
        set(names.second, text.substr(comma + 1));
    }

    void set_wheel(const std::string& text)
    {
        const std::size_t equals = text.find('=');
        // The option may be repeated, so the subject quotes the one that is wrong.
        const std::string subject = "--wheel " + text;
        if (equals == std::string::npos)
            return refuse({failure_kind::usage, subject, "has no \"=\"", "write shadows=HUE,CHROMA"});
        const auto names = read_choice(text.substr(0, equals), wheel_names);
        if (!names)
            return refuse(about(subject, names.error()));
        set_pair(subject, *names, std::string_view(text).substr(equals + 1), "HUE,CHROMA");
    }

    void set_setting(const std::string& text)
    {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos)
            refuse({failure_kind::usage, "--set " + text, "has no \"=\"", "write \"Name=value\""});
        else
            set(text.substr(0, equals), text.substr(equals + 1));
    }

    resolved_grade take() { return std::move(resolved); }

private:
    void refuse(failure why) { resolved.failures.push_back(std::move(why)); }

    std::span<const parameter_info> table;
    resolved_grade resolved;
};

} // namespace

bool asks_for_values(const grade_request& request)
{
    return request.state_file || !request.wheels.empty() || request.sky || request.greenery || request.skin ||
           request.film || !request.settings.empty();
}

void add_grade_options(argument_parser& parser, grade_request& request)
{
    parser.group("Grade");
    parser.texts("-p,--preset", request.presets, "NAME|FILE|-", "start from a preset; \"-\" reads it from stdin");
    parser.texts("-s,--set", request.settings, "NAME=VALUE",
                 "set a parameter, such as \"Sky Strength=60\"; repeatable, the last value wins");
    parser.texts("--wheel", request.wheels, "ZONE=HUE,CHROMA",
                 "set a wheel: shadows, mids, highlights or master; repeatable");
    parser.text("--sky", request.sky, "ANGLE,STRENGTH", "set the sky pad; ANGLE 0 to 360, STRENGTH 0 to 100");
    parser.text("--greenery", request.greenery, "ANGLE,STRENGTH", "set the greenery pad");
    parser.text("--skin", request.skin, "ANGLE,STRENGTH", "set the skin tone pad");
    parser.text("--film", request.film, "ANGLE,STRENGTH", "set the film contrast pad");
    parser.text("--state", request.state_file, "FILE",
                "start from a saved state; a preset and other options are applied after it");
    parser.flag("--bypass", request.bypass, "turn the effect off");
}

resolved_grade resolve_grade(const grade_request& request, std::span<const parameter_info> table)
{
    grade_resolver resolver(table);
    for (const std::string& text : request.wheels)
        resolver.set_wheel(text);
    const auto pad = [&](const char* option, const pair_names& names, const std::optional<std::string>& text)
    {
        if (text)
            resolver.set_pair(option + (' ' + *text), names, *text, "ANGLE,STRENGTH");
    };
    pad("--sky", sky_names, request.sky);
    pad("--greenery", greenery_names, request.greenery);
    pad("--skin", skin_names, request.skin);
    pad("--film", film_names, request.film);
    // Before the settings, so that -s "Global Bypass=false" wins over --bypass as over any other option.
    if (request.bypass)
        resolver.set("Global Bypass", "true");
    for (const std::string& text : request.settings)
        resolver.set_setting(text);
    return resolver.take();
}

} // namespace ov1

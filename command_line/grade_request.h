// The grade that a command line asks for.
#pragma once

#include "command_line/parameter_info.h"
#include "shared/failure.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

class argument_parser;

/// The options as they were written.
struct grade_request
{
    std::optional<std::string> state_file;
    std::vector<std::string> presets; ///< a name, a file, or "-" for the standard input; the last one holds
    std::vector<std::string> wheels;  ///< "shadows=HUE,CHROMA"
    std::optional<std::string> sky;   ///< "ANGLE,STRENGTH", and the next three
    std::optional<std::string> greenery;
    std::optional<std::string> skin;
    std::optional<std::string> film;
    std::vector<std::string> settings; ///< "Sky Strength=60"
    bool bypass = false;
};

/// Whether anything is asked for besides presets and the bypass.
bool asks_for_values(const grade_request& request);

/// Declares the options under the heading "Grade". The request must outlive the parsing.
void add_grade_options(argument_parser& parser, grade_request& request);

struct resolved_grade
{
    std::vector<assignment> assignments;
    std::vector<failure> failures; ///< one for each option that is wrong, which then gives no assignment
};

/// The values to set, in the order in which they are to be set: wheels, pads, the bypass, then the settings as they
/// stand on the command line, so that a later one wins. The state file and the preset come before all of them and are
/// applied by the caller.
[[nodiscard]] resolved_grade resolve_grade(const grade_request& request, std::span<const parameter_info> table);

} // namespace ov1

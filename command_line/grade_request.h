// The grade options of a command line.
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

/// The texts of the options, as the user wrote them.
struct grade_request
{
    std::optional<std::string> state_file;
    std::vector<std::string> presets; ///< a name, a file, or "-" for stdin; the last one counts
    std::vector<std::string> wheels;  ///< "shadows=HUE,CHROMA"
    std::optional<std::string> sky;   ///< "ANGLE,STRENGTH", as are the next three
    std::optional<std::string> greenery;
    std::optional<std::string> skin;
    std::optional<std::string> film;
    std::vector<std::string> settings; ///< "Sky Strength=60"
    bool bypass = false;
};

/// Whether any option other than presets and the bypass is given.
bool asks_for_values(const grade_request& request);

/// Declares the options under the heading "Grade". The request must outlive the parser.
void add_grade_options(argument_parser& parser, grade_request& request);

/// The outcome of reading all options: either list may be empty, or both.
struct resolved_grade
{
    std::vector<assignment> assignments;
    std::vector<failure> failures; ///< one for each option that is wrong, which then gives no assignment
};

/// The values in the order in which they must be set: wheels, pads, the bypass, then the settings in the order of the
/// command line, so that a later one wins. The caller applies the state file and the preset before them.
[[nodiscard]] resolved_grade resolve_grade(const grade_request& request, std::span<const parameter_info> table);

} // namespace ov1

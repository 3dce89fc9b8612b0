// Which of some names was meant by a mistyped one.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// The fewest insertions, deletions, replacements and swaps of neighbours that turn one text into the other, no
/// character touched twice. Source: optimal string alignment, Damerau 1964, doi:10.1145/363958.363994.
std::size_t edit_distance(std::string_view x, std::string_view y);

/// A name as it is compared: lower case, without blanks, dashes and underscores.
std::string plain_name(std::string_view name);

/// A hint such as: did you mean "Sky Angle" or "Sky Strength"? At most three names: the nearest ones by their plain
/// forms, if a third of the letters suffices to reach them; else those that contain what was typed. Empty if there is
/// none.
std::string did_you_mean(std::string_view typed, std::span<const std::string> names);

} // namespace ov1

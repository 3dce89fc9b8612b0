// Suggestions for mistyped names.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// The smallest number of insertions, deletions, substitutions and transpositions of neighbours that turns one text
/// into the other; no character is edited twice. Source: optimal string alignment, Damerau 1964,
/// doi:10.1145/363958.363994.
/// Counts bytes, not characters: the names that are compared are ASCII. Takes time proportional to the product of both
/// lengths, and memory for three rows.
std::size_t edit_distance(std::string_view x, std::string_view y);

/// The form in which names are compared: lower case, without blanks, dashes and underscores.
std::string plain_name(std::string_view name);

/// A hint such as: did you mean "Sky Angle" or "Sky Strength"? It lists the names with the smallest edit distance of
/// their plain forms, if that is at most a third of the typed letters, or else the names that contain the typed text.
/// Empty where there is none, or more than three.
std::string did_you_mean(std::string_view typed, std::span<const std::string> names);

} // namespace ov1

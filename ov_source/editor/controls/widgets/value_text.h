// Values as the editor writes them beside its controls, and as users type them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ov1
{

/// At most one digit after the point, and none for a whole number: "-12.5", "40".
std::string plain_value_text(float value);

/// "212.4°, 34.5 %": a hue or an angle, and how much of it.
std::string pad_value_text(float degrees, float percent);

/// The same as it is typed: "212.4, 34.5".
std::string pad_entry_text(float degrees, float percent);

/// Reads as many finite numbers as values has places, with a decimal point whatever the locale; between two of them
/// stand a comma, blanks or both. False, and values left alone, for anything else.
[[nodiscard]] bool read_typed_values(std::string_view text, std::span<float> values);

} // namespace ov1

// Values as text: as the editor writes them beside its controls, and as users type them.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace ov1
{

/// At most one digit after the point, and none for a whole number: "-12.5", "40".
std::string plain_value_text(float value);

/// "212.4°, 34.5 %": hue or angle, and chroma or strength.
std::string pad_value_text(float degrees, float percent);

/// The same two values as they are typed: "212.4, 34.5".
std::string pad_entry_text(float degrees, float percent);

/// Reads exactly values.size() finite numbers, with a decimal point in every locale, separated by a comma, blanks or
/// both. False for any other text, and values are then unchanged.
[[nodiscard]] bool read_typed_values(std::string_view text, std::span<float> values);

} // namespace ov1

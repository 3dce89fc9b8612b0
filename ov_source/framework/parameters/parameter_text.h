// Converts a parameter's value to text and back, always in the classic locale.
#pragma once

#include "shared/param_value.h"

#include <string>

namespace ov1
{

/// The text of a valid record; "invalid" and false if it has none.
///   continuous   general notation with the given number of significant digits: 0.123, 1.23e+03
///   integral     decimal
///   boolean      true, false
///   color        # and alpha, red, green, blue as codes 0..255 in hexadecimal, each two wide: #ff 07fff
/// Colour channels are padded with a blank, not a zero, as old files have it; not every colour text can be read back.
[[nodiscard]] bool text_from_value(const param_value& v, int precision, std::string& out);

/// Reads a text into a valid record, according to its kind, and clamps the value to the record's bounds. Leading blanks
/// and everything after the number or word are ignored. Returns false, with v unchanged, unless the text begins with a
/// finite number in the range of the kind, with true or false, or has one to eight significant hexadecimal digits for a
/// colour. In a colour all other characters are ignored: #80FF0000, 80 ff 00 00 and 0x80ff0000 are the same.
[[nodiscard]] bool value_from_text(const std::string& text, param_value& v);

} // namespace ov1

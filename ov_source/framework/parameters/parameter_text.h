// A parameter's value as text and back. The texts are those of the classic locale, whatever the desktop's.
#pragma once

#include "shared/param_value.h"

#include <string>

namespace ov1
{

/// The text of a valid record; "invalid" and false when it has no text.
///   continuous   general notation with the given number of significant digits: 0.123, 1.23e+03
///   integral     decimal
///   boolean      true, false
///   color        # and alpha, red, green, blue as whole 255ths in hexadecimal, each two wide: #ff 07fff
/// The filling of a colour's channel is a blank, not a zero, so that not every colour text reads back.
[[nodiscard]] bool text_from_value(const param_value& v, int precision, std::string& out);

/// Reads a text into a valid record, by its kind, and brings the value within the record's bounds. Leading blanks are
/// skipped, and what follows a number or word is not looked at. A text that does not begin with a finite number of
/// the kind's range or with true or false, or a colour without one to eight significant hexadecimal digits, gives
/// false and leaves v alone. For a colour all other characters are dropped first: #80FF0000, 80 ff 00 00 and
/// 0x80ff0000 are one colour.
[[nodiscard]] bool value_from_text(const std::string& text, param_value& v);

} // namespace ov1

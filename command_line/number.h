// Numbers as users write them, the same in every locale.
#pragma once

#include "shared/result.h"

#include <string>
#include <string_view>

namespace ov1
{

/// The text without blanks at its ends.
std::string_view trimmed(std::string_view text);

/// A finite number with a decimal point: "60", "-0.5", "+1e1". Blanks around it are ignored. The failure has no
/// subject; its hint corrects near misses: "60,5" is not a number (write 60.5).
result<double> read_number(std::string_view text);

/// The same, from min to max, both included; the failure's reason names the number, its hint the range.
result<double> read_number_within(std::string_view text, double min, double max);

/// A whole number from min to max.
/// "7.0" and "1e2" are whole; the failure for "1.5" says so.
result<int> read_whole_number_within(std::string_view text, int min, int max);

/// The shortest text that reads back as the same number: 60, -0.5, 1e+30.
/// Never with a thousands separator; the value must be finite to be read back.
std::string number_text(double value);
std::string number_text(float value);

} // namespace ov1

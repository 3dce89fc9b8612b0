// Numbers as users write them, the same in every locale.
#pragma once

#include "command_line/problem.h"

#include <string>
#include <string_view>

namespace ov1
{

/// The text without blanks at its ends.
std::string_view trimmed(std::string_view text);

/// A finite number with a decimal point: "60", "-0.5", "+1e1". Blanks around it are passed over. On failure sets the
/// problem's reason and hint: "60,5" is no number (write 60.5).
[[nodiscard]] bool read_number(std::string_view text, double& value, problem& why);

/// The same, and within min..max, both included; otherwise the reason names the number and the hint the range.
[[nodiscard]] bool read_number_within(std::string_view text, double min, double max, double& value, problem& why);

/// A whole number within min..max.
[[nodiscard]] bool read_whole_number_within(std::string_view text, int min, int max, int& value, problem& why);

/// The shortest text that reads back as the same number: 60, -0.5, 1e+30.
std::string number_text(double value);
std::string number_text(float value);

} // namespace ov1

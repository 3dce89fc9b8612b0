#include "editor/controls/widgets/callout_text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ov1
{

namespace
{

constexpr int most_digits = 9;
constexpr std::size_t longest_number = 64; // sign, 39 digits of the largest float, point, most_digits

} // namespace

std::string callout_text(float value, int precision, std::string_view unit)
{
    std::array<char, longest_number> number;
    // Not printf, whose decimal separator follows the locale.
    const auto end = std::to_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed,
                                   std::clamp(precision, 0, most_digits))
                         .ptr;
    std::string text(number.data(), end);
    // A small negative value rounds to "-0.0"; zero has no sign.
    if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos)
        text.erase(0, 1);
    if (!unit.empty())
        text.append(" ").append(unit);
    return text;
}

} // namespace ov1

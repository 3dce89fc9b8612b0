#include "editor/controls/widgets/value_text.h"

#include "editor/controls/widgets/callout_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

namespace ov1
{

namespace
{

void skip_blanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size())); }

/// Reads a finite number at the front and removes it.
bool take_number(std::string_view& text, float& value)
{
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1); // from_chars accepts no plus sign
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    // from_chars reads "inf" and "nan" as numbers.
    if (error != std::errc{} || !std::isfinite(value))
        return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

/// Removes the separator between two numbers; false where there is none.
bool take_separator(std::string_view& text)
{
    const std::size_t before = text.size();
    skip_blanks(text);
    if (text.starts_with(','))
        text.remove_prefix(1);
    skip_blanks(text);
    return text.size() < before;
}

} // namespace

std::string plain_value_text(float value)
{
    std::string text = callout_text(value, 1, {});
    if (text.ends_with(".0"))
        text.resize(text.size() - 2);
    return text;
}

std::string pad_value_text(float degrees, float percent)
{
    return plain_value_text(degrees) + "\u00B0, " + plain_value_text(percent) + " %";
}

std::string pad_entry_text(float degrees, float percent)
{
    return plain_value_text(degrees) + ", " + plain_value_text(percent);
}

bool read_typed_values(std::string_view text, std::span<float> values)
{
    // Read aside, so that values stay unchanged where a later number is wrong.
    std::vector<float> numbers(values.size());
    skip_blanks(text);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        if ((i > 0 && !take_separator(text)) || !take_number(text, numbers[i]))
            return false;
    skip_blanks(text);
    if (!text.empty())
        return false;
    std::ranges::copy(numbers, values.begin());
    return true;
}

} // namespace ov1

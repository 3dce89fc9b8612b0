#include "command_line/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ov1
{

namespace
{

bool parse(std::string_view text, double& value)
{
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1); // from_chars knows no plus
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() && std::isfinite(value);
}

/// How a near miss should have been written; empty if the text is none.
std::string corrected(std::string_view text)
{
    std::string better(text);
    if (std::count(better.begin(), better.end(), ',') == 1)
        std::replace(better.begin(), better.end(), ',', '.');
    while (better.ends_with('%') || better.ends_with("\u00B0"))
        better.resize(better.size() - (better.ends_with('%') ? 1 : 2));
    double value = 0.0;
    return better != text && parse(better, value) ? better : std::string();
}

template <typename T>
std::string shortest_text(T value)
{
    std::array<char, 64> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

bool out_of_range(double value, double min, double max, problem& why)
{
    if (value >= min && value <= max)
        return false;
    why.reason = number_text(value) + " is out of range";
    why.hint = number_text(min) + " to " + number_text(max);
    return true;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool read_number(std::string_view text, double& value, problem& why)
{
    text = trimmed(text);
    double number = 0.0;
    if (!parse(text, number))
    {
        const std::string better = corrected(text);
        why.reason = text.empty() ? "a number is missing" : in_quotes(text) + " is no number";
        why.hint = better.empty() ? "" : "write " + better;
        return false;
    }
    value = number;
    return true;
}

bool read_number_within(std::string_view text, double min, double max, double& value, problem& why)
{
    double number = 0.0;
    if (!read_number(text, number, why) || out_of_range(number, min, max, why))
        return false;
    value = number;
    return true;
}

bool read_whole_number_within(std::string_view text, int min, int max, int& value, problem& why)
{
    double number = 0.0;
    if (!read_number_within(text, min, max, number, why))
        return false;
    if (number != std::trunc(number))
    {
        why.reason = in_quotes(trimmed(text)) + " is no whole number";
        why.hint.clear();
        return false;
    }
    value = static_cast<int>(number);
    return true;
}

std::string number_text(double value) { return shortest_text(value); }
std::string number_text(float value) { return shortest_text(value); }

} // namespace ov1

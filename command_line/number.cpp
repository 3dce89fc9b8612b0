#include "command_line/number.h"

#include "command_line/failure_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

/// from_chars ignores the locale. The whole text must be a number; "inf" and "nan" are refused.
bool parse(std::string_view text, double& value)
{
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1); // from_chars refuses a plus sign
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() && std::isfinite(value);
}

/// The text as it was probably meant: "60,5", "60%" and "60°" are near misses. Empty where it is not one.
std::string corrected(std::string_view text)
{
    std::string better(text);
    if (std::count(better.begin(), better.end(), ',') == 1)
        std::replace(better.begin(), better.end(), ',', '.');
    while (better.ends_with('%') || better.ends_with("\u00B0"))
        // The degree sign has two bytes in UTF-8.
        better.resize(better.size() - (better.ends_with('%') ? 1 : 2));
    // A correction is suggested only if it would be accepted.
    double value = 0.0;
    return better != text && parse(better, value) ? better : std::string();
}

/// 64 characters hold the shortest text of every finite number.
template <typename T>
std::string shortest_text(T value)
{
    std::array<char, 64> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

failure unusable(std::string reason, std::string hint = {})
{
    return {failure_kind::usage, {}, std::move(reason), std::move(hint)};
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

result<double> read_number(std::string_view text)
{
    text = trimmed(text);
    double number = 0.0;
    if (parse(text, number))
        return number;
    if (text.empty())
        return unusable("a number is missing");
    const std::string better = corrected(text);
    return unusable(in_quotes(text) + " is not a number", better.empty() ? "" : "write " + better);
}

result<double> read_number_within(std::string_view text, double min, double max)
{
    auto number = read_number(text);
    if (number && (*number < min || *number > max))
        return unusable(number_text(*number) + " is out of range", number_text(min) + " to " + number_text(max));
    return number;
}

result<int> read_whole_number_within(std::string_view text, int min, int max)
{
    const auto number = read_number_within(text, min, max);
    if (!number)
        return number.error();
    if (*number != std::trunc(*number))
        return unusable(in_quotes(trimmed(text)) + " is not a whole number");
    return static_cast<int>(*number);
}

std::string number_text(double value) { return shortest_text(value); }
std::string number_text(float value) { return shortest_text(value); }

} // namespace ov1

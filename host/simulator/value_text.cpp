#include "host/simulator/value_text.h"

#include <charconv>
#include <cmath>

namespace ov1
{

namespace
{

/// The shortest text that reads back to the bit, in every locale. 32 characters hold any double.
template <typename T>
std::string number_text(T v)
{
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, v).ptr};
}

/// Removes a blank and a number from the front of the text.
template <typename T>
bool take_number(std::string_view& text, T& v)
{
    if (!text.starts_with(' '))
        return false;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), v);
    if (error != std::errc())
        return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

// from_chars reads "inf" and "nan" too.
bool take_finite(std::string_view& text, double& v) { return take_number(text, v) && std::isfinite(v); }

bool take_word(std::string_view& text, std::string_view word)
{
    if (!text.starts_with(word))
        return false;
    text.remove_prefix(word.size());
    return true;
}

/// One overload per type of store_value, so that a type without a text does not compile.
struct writer
{
    std::string operator()(double v) const { return "float " + number_text(v); }
    std::string operator()(int v) const { return "int " + number_text(v); }
    std::string operator()(bool v) const { return v ? "bool 1" : "bool 0"; }
    std::string operator()(const store_color& c) const
    {
        return "color " + number_text(c.red) + ' ' + number_text(c.green) + ' ' + number_text(c.blue) + ' ' +
               number_text(c.alpha);
    }
    std::string operator()(const store_archive&) const { return {}; }
};

} // namespace

std::string text_of_value(const store_value& value) { return std::visit(writer(), value); }

std::optional<store_value> value_of_text(std::string_view text)
{
    double number = 0.0;
    int whole = 0;
    store_color c;
    store_value read;
    if (take_word(text, "float") && take_finite(text, number))
        read = number;
    else if (take_word(text, "int") && take_number(text, whole))
        read = whole;
    else if (take_word(text, "bool") && take_number(text, whole) && (whole == 0 || whole == 1))
        read = whole == 1;
    else if (take_word(text, "color") && take_finite(text, c.red) && take_finite(text, c.green) &&
             take_finite(text, c.blue) && take_finite(text, c.alpha))
        read = c;
    else
        return std::nullopt;
    // Something follows the value.
    if (!text.empty())
        return std::nullopt;
    return read;
}

// The four fields as they are: the fraction is not reduced, and the flags are kept.
std::string text_of_time(CMTime time)
{
    return number_text(time.value) + ' ' + number_text(time.timescale) + ' ' + number_text(time.flags) + ' ' +
           number_text(time.epoch);
}

std::optional<CMTime> time_of_text(std::string_view text)
{
    const std::string spaced = ' ' + std::string(text); // as take_number expects each number
    std::string_view rest = spaced;
    CMTime read;
    if (!take_number(rest, read.value) || !take_number(rest, read.timescale) || !take_number(rest, read.flags) ||
        !take_number(rest, read.epoch) || !rest.empty() || read.timescale <= 0)
        return std::nullopt;
    return read;
}

} // namespace ov1

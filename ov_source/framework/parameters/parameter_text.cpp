#include "framework/parameters/parameter_text.h"

#include <charconv>
#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>

namespace ov1
{

namespace
{

/// Padded with blanks, not zeros: the stream's fill character stays as it is.
void write_color(std::ostream& out, const param_argb& c)
{
    out << '#' << std::hex;
    for (const float channel : {c.alpha, c.red, c.green, c.blue})
        out << std::setw(2) << static_cast<int>(channel * 255.0);
}

/// The inverse: the upper byte is alpha, the lowest blue.
param_argb color_of(std::uint32_t u)
{
    const auto channel = [u](int shift) { return static_cast<float>(u >> shift & 255u) / 255.0f; };
    return {channel(24), channel(16), channel(8), channel(0)};
}

bool is_hexadecimal(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

/// The number that the hexadecimal digits of a text form, whatever characters are between them.
bool read_hexadecimal(std::string text, std::uint32_t& v)
{
    std::erase_if(text, [](char c) { return !is_hexadecimal(c); });
    // from_chars fails for no digits and for more than 32 bits.
    return std::from_chars(text.data(), text.data() + text.size(), v, 16).ec == std::errc();
}

/// Reads the beginning of a text in the classic locale: a decimal comma is never accepted.
template <typename T>
bool read(const std::string& text, T& v, std::ios_base::fmtflags flags = {})
{
    std::istringstream in(text);
    in.imbue(std::locale::classic());
    in.setf(flags);
    return static_cast<bool>(in >> v);
}

/// Reads a value of a kind; the cell keeps its value on failure.
bool read_cell(const std::string& text, param_type type, param_cell& cell)
{
    const auto take = [&cell](const auto& v)
    {
        cell = param_cell::of(v);
        return true;
    };
    float number = 0;
    std::int32_t whole = 0;
    bool flag = false;
    std::uint32_t digits = 0;
    switch (type)
    {
    case param_type::continuous:
        // Not all standard libraries read "inf" and "nan".
        return read(text, number) && std::isfinite(number) && take(number);
    case param_type::integral:
        return read(text, whole) && take(whole);
    case param_type::boolean:
        return read(text, flag, std::ios_base::boolalpha) && take(flag);
    case param_type::color:
        return read_hexadecimal(text, digits) && take(color_of(digits));
    case param_type::unset:
        break;
    }
    return false;
}

} // namespace

bool text_from_value(const param_value& v, int precision, std::string& out)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    switch (v.type)
    {
    case param_type::continuous:
        stream << std::setprecision(precision) << v.value.as_continuous();
        break;
    case param_type::integral:
        stream << v.value.as_integral();
        break;
    case param_type::boolean:
        stream << std::boolalpha << v.value.as_boolean();
        break;
    case param_type::color:
        write_color(stream, v.value.as_color());
        break;
    default:
        // An unknown kind has no text.
        stream.setstate(std::ios_base::failbit);
    }
    out = stream ? stream.str() : "invalid";
    return static_cast<bool>(stream);
}

bool value_from_text(const std::string& text, param_value& v)
{
    if (!read_cell(text, v.type, v.value))
        return false;
    // Clamped here, so that a text that is too large sets the bound.
    v.bounce_and_quantize(v);
    return true;
}

} // namespace ov1

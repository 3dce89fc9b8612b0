#include "command_line/problem.h"

#include <cstdint>

namespace ov1
{

namespace
{

std::uint8_t byte_at(std::string_view text, std::size_t i)
{
    return i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0};
}

bool continues(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

std::string on_one_line(std::string_view text)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string result;
    while (!text.empty())
    {
        const std::size_t length = utf8_length(text);
        const std::uint8_t byte = byte_at(text, 0);
        if (length == 0 || byte < 0x20 || byte == 0x7F)
        {
            result += "\\x";
            result += digits[byte >> 4];
            result += digits[byte & 15];
        }
        else
            result += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return result;
}

} // namespace

std::size_t utf8_length(std::string_view text)
{
    if (text.empty())
        return 0;
    const std::uint8_t first = byte_at(text, 0);
    const std::uint8_t second = byte_at(text, 1);
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return continues(second) ? 2 : 0;
    // Overlong forms, surrogates and what lies beyond U+10FFFF are told by the second byte.
    const bool second_fits = continues(second) && !(first == 0xE0 && second < 0xA0) &&
                             !(first == 0xED && second > 0x9F) && !(first == 0xF0 && second < 0x90) &&
                             !(first == 0xF4 && second > 0x8F);
    const std::size_t length = first >= 0xE0 && first <= 0xEF ? 3 : first >= 0xF0 && first <= 0xF4 ? 4 : 0;
    if (length == 0 || !second_fits || !continues(byte_at(text, 2)) || (length == 4 && !continues(byte_at(text, 3))))
        return 0;
    return length;
}

std::string in_quotes(std::string_view text)
{
    std::string result = "\"";
    result += on_one_line(text);
    return result += '"';
}

std::string problem_line(const problem& p)
{
    std::string line;
    if (!p.subject.empty())
        line += in_quotes(p.subject) + ": ";
    line += on_one_line(p.reason);
    if (!p.hint.empty())
        line += " (" + on_one_line(p.hint) + ')';
    return line;
}

} // namespace ov1

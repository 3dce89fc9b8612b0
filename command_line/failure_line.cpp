#include "command_line/failure_line.h"

#include "command_line/utf8.h"

#include <cstdint>

namespace ov1
{

namespace
{

/// Escapes what could break the line or control the terminal: a file name may hold any byte.
std::string on_one_line(std::string_view text)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string result;
    while (!text.empty())
    {
        const std::size_t length = utf8_length(text);
        const auto byte = static_cast<std::uint8_t>(text.front());
        // 0x7F is DEL, the only control character of ASCII above the blank.
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

std::string in_quotes(std::string_view text)
{
    std::string result = "\"";
    result += on_one_line(text);
    return result += '"';
}

std::string failure_line(const failure& why)
{
    std::string line;
    if (!why.subject.empty())
        line += in_quotes(why.subject) + ": ";
    line += on_one_line(why.reason);
    if (!why.hint.empty())
        line += " (" + on_one_line(why.hint) + ')';
    return line;
}

} // namespace ov1

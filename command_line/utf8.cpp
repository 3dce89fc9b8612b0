#include "command_line/utf8.h"

#include <cstdint>

namespace ov1
{

namespace
{

/// 0, which continues no sequence, beyond the end.
std::uint8_t byte_at(std::string_view text, std::size_t i)
{
    return i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0};
}

/// Whether the byte has the form 10xxxxxx.
bool continues(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

} // namespace

std::size_t utf8_length(std::string_view text)
{
    if (text.empty())
        return 0;
    const std::uint8_t first = byte_at(text, 0);
    const std::uint8_t second = byte_at(text, 1);
    if (first < 0x80)
        return 1;
    // 0xC0 and 0xC1 would begin overlong forms of ASCII.
    if (first >= 0xC2 && first <= 0xDF)
        return continues(second) ? 2 : 0;
    // The second byte tells overlong forms, surrogates and code points beyond U+10FFFF.
    const bool second_fits = continues(second) && !(first == 0xE0 && second < 0xA0) &&
                             !(first == 0xED && second > 0x9F) && !(first == 0xF0 && second < 0x90) &&
                             !(first == 0xF4 && second > 0x8F);
    const std::size_t length = first >= 0xE0 && first <= 0xEF ? 3 : first >= 0xF0 && first <= 0xF4 ? 4 : 0;
    if (length == 0 || !second_fits || !continues(byte_at(text, 2)) || (length == 4 && !continues(byte_at(text, 3))))
        return 0;
    return length;
}

} // namespace ov1

#include "platform/settings_text.h"

#include <algorithm>
#include <cassert>
#include <charconv>

namespace ov1
{

namespace
{

/// The first line of a new file, for users who open it.
constexpr std::string_view head_line =
    "# Orvane settings: kind, key and value; bytes outside ! to ~, and %, are written %XX";
constexpr char hex_digits[] = "0123456789abcdef";

void append_hex(std::string& text, unsigned char byte)
{
    text += hex_digits[byte >> 4];
    text += hex_digits[byte & 15];
}

/// False unless the text is two hexadecimal digits.
bool read_hex(std::string_view two, std::uint8_t& byte)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(two.data(), two.data() + two.size(), value, 16);
    if (two.size() != 2 || error != std::errc{} || end != two.data() + 2)
        return false;
    byte = static_cast<std::uint8_t>(value);
    return true;
}

/// The result has no blank and no line feed, whatever the text contains.
std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text)
    {
        if (c > ' ' && c < 127 && c != '%')
        {
            result += c;
            continue;
        }
        result += '%';
        append_hex(result, static_cast<unsigned char>(c));
    }
    return result;
}

/// False for an incomplete or malformed escape.
bool unescape(std::string_view text, std::string& result)
{
    result.clear();
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        std::uint8_t byte = static_cast<std::uint8_t>(text[i]);
        if (text[i] == '%')
        {
            if (!read_hex(text.substr(i + 1, 2), byte))
                return false;
            i += 2;
        }
        result += static_cast<char>(byte);
    }
    return true;
}

/// False for an odd number of digits: the last byte then has only one.
bool read_bytes(std::string_view text, std::vector<std::uint8_t>& bytes)
{
    bytes.resize((text.size() + 1) / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (!read_hex(text.substr(2 * i, 2), bytes[i]))
            return false;
    return true;
}

/// False for an unknown kind or a malformed value.
bool read_value(std::string_view kind, std::string_view text, setting& value)
{
    if (kind == "string")
        return unescape(text, value.emplace<std::string>());
    if (kind == "bytes")
        return read_bytes(text, value.emplace<std::vector<std::uint8_t>>());
    if (kind != "uint32")
        return false;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value.emplace<std::uint32_t>());
    return error == std::errc{} && end == text.data() + text.size();
}

/// Turns the escaped key in `text` into the whole line.
struct value_writer
{
    std::string text;

    void operator()(const std::string& value) { text = "string " + text + ' ' + escaped(value); }
    void operator()(std::uint32_t value) { text = "uint32 " + text + ' ' + std::to_string(value); }
    void operator()(const std::vector<std::uint8_t>& value)
    {
        text = "bytes " + text + ' ';
        for (const std::uint8_t byte : value)
            append_hex(text, byte);
    }
};

/// Removes the text up to the next blank from the front and returns it.
std::string_view take_field(std::string_view& text)
{
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

} // namespace

settings_text::settings_text(std::string_view text)
{
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(read_line(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

settings_text::line settings_text::read_line(std::string_view text)
{
    // The text is kept as it is, so that an unknown line can be written back unchanged.
    line result{std::string(text), {}, {}};
    // An editor on another system may have added carriage returns.
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    const std::string_view kind = take_field(text);
    std::string key;
    if (unescape(take_field(text), key) && read_value(kind, text, result.value))
        result.key = key;
    return result;
}

const setting* settings_text::find(std::string_view key) const
{
    const auto found =
        // From the end: the last of several entries counts.
        std::find_if(lines.rbegin(), lines.rend(), [&](const line& l) { return !key.empty() && l.key == key; });
    return found == lines.rend() ? nullptr : &found->value;
}

void settings_text::set(std::string_view key, setting value)
{
    assert(!key.empty());
    value_writer writer{escaped(key)};
    std::visit(writer, value);
    line entry{std::move(writer.text), std::string(key), std::move(value)};
    // The new entry keeps the line of the first old one.
    const auto first = std::find_if(lines.begin(), lines.end(), [&](const line& l) { return l.key == key; });
    if (first == lines.end())
    {
        if (lines.empty())
            lines.push_back({std::string(head_line), {}, {}});
        lines.push_back(std::move(entry));
        return;
    }
    lines.erase(std::remove_if(first + 1, lines.end(), [&](const line& l) { return l.key == key; }), lines.end());
    *first = std::move(entry);
}

void settings_text::remove(std::string_view key)
{
    std::erase_if(lines, [&](const line& l) { return !key.empty() && l.key == key; });
}

std::string settings_text::to_text() const
{
    std::string text;
    for (const line& l : lines)
        text += l.text + '\n';
    return text;
}

} // namespace ov1

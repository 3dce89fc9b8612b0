// Writes JSON.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// Compact JSON (RFC 8259) in the order of the calls, with commas and colons added. The caller closes what it opens,
/// and gives a key before every value within an object. Bytes that are not UTF-8 become U+FFFD; numbers that are not
/// finite become null.
class json_text
{
public:
    json_text& begin_object() { return open('{', '}'); }
    json_text& begin_array() { return open('[', ']'); }
    /// Closes the innermost object or array.
    json_text& end();
    json_text& key(std::string_view name);
    json_text& value(std::string_view text);
    json_text& value(const char* text) { return value(std::string_view(text)); }
    json_text& value(bool b) { return bare(b ? "true" : "false"); }
    json_text& value(double number);
    /// The shortest text that reads back as the same float; as a double it would show digits that were never meant.
    json_text& value(float number);
    json_text& value(std::size_t number) { return bare(std::to_string(number)); }
    json_text& value(int number) { return bare(std::to_string(number)); }

    /// Complete once everything opened is closed; without a line feed.
    const std::string& text() const { return written; }

private:
    json_text& open(char opening, char closing);
    json_text& bare(std::string_view literal);
    void separate();
    void append_quoted(std::string_view text);

    std::string written;
    // The closing brackets still to be written, innermost last.
    std::vector<char> closings;
    bool needs_comma = false;
};

} // namespace ov1

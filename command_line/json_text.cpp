#include "command_line/json_text.h"

#include "command_line/number.h"
#include "command_line/utf8.h"

#include <array>
#include <cassert>
#include <cmath>
#include <cstdio>

namespace ov1
{

json_text& json_text::open(char opening, char closing)
{
    separate();
    written += opening;
    closings.push_back(closing);
    needs_comma = false;
    return *this;
}

json_text& json_text::end()
{
    // A mistake of the caller, never of the data.
    assert(!closings.empty());
    written += closings.back();
    closings.pop_back();
    needs_comma = true;
    return *this;
}

json_text& json_text::key(std::string_view name)
{
    separate();
    append_quoted(name);
    written += ':';
    needs_comma = false;
    return *this;
}

json_text& json_text::value(std::string_view text)
{
    separate();
    append_quoted(text);
    needs_comma = true;
    return *this;
}

json_text& json_text::value(double number) { return bare(std::isfinite(number) ? number_text(number) : "null"); }
json_text& json_text::value(float number) { return bare(std::isfinite(number) ? number_text(number) : "null"); }

json_text& json_text::bare(std::string_view literal)
{
    separate();
    written += literal;
    needs_comma = true;
    return *this;
}

void json_text::separate()
{
    if (needs_comma)
        written += ',';
}

// RFC 8259, section 7: quotes, backslashes and control characters must be escaped; all else may stand as UTF-8.
void json_text::append_quoted(std::string_view text)
{
    written += '"';
    while (!text.empty())
    {
        const std::size_t length = utf8_length(text);
        const char c = text.front();
        if (length == 0)
            // A file name need not be UTF-8, but JSON must be.
            written += "\uFFFD";
        else if (c == '"' || c == '\\')
            (written += '\\') += c;
        else if (c >= 0 && c < ' ')
        {
            std::array<char, 8> escape;
            // Four hexadecimal digits, the one form that holds for all control characters.
            std::snprintf(escape.data(), escape.size(), "\\u%04x", c);
            written += escape.data();
        }
        else
            written += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    written += '"';
}

} // namespace ov1

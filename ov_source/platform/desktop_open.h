// Opens documents and web pages with the desktop's own programs.
#pragma once

#include <string>
#include <string_view>

namespace ov1
{

/// Whether a text is an absolute URL: a scheme, a colon, and no blank or control character (RFC 3986, section 3.1).
bool is_url(std::string_view text);

/// What the opener gets as its one argument: a URL as it is, a path so that it cannot be taken for an option.
std::string opener_argument(std::string_view text);

/// Starts xdg-open without a shell and returns at once. Its input and output go nowhere. False for an empty text, and
/// where it cannot be started. Any thread.
bool open_with_desktop(const std::string& text);

} // namespace ov1

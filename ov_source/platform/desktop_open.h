// Opens documents and web pages with the desktop's own programs.
#pragma once

#include <string>
#include <string_view>

namespace ov1
{

/// Whether a text is an absolute URL: a scheme, a colon, and no blank or control character (RFC 3986, section 3.1).
bool is_url(std::string_view text);

/// The argument for the opener: a URL or an absolute path unchanged, a relative path after "./", so that a leading dash
/// is not read as an option.
std::string opener_argument(std::string_view text);

/// Starts xdg-open without a shell and returns at once. Its standard streams are connected to /dev/null. Returns false
/// for an empty text or when xdg-open cannot be started. Any thread.
bool open_with_desktop(const std::string& text);

} // namespace ov1

#include "platform/os_release.h"

#include <algorithm>

namespace ov1
{

namespace
{

/// Removes one pair of quotes, and backslashes before the characters that the format escapes.
std::string unquoted(std::string_view value)
{
    const bool is_quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
    if (is_quoted)
        value = value.substr(1, value.size() - 2);
    std::string result;
    for (std::size_t i = 0; i < value.size(); ++i)
    {
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        result += value[i];
    }
    return result;
}

} // namespace

std::string pretty_name_of_os_release(std::string_view text)
{
    constexpr std::string_view key = "PRETTY_NAME=";
    while (!text.empty())
    {
        // The last line may lack a line feed.
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (text.starts_with(key))
            return unquoted(text.substr(key.size(), end - key.size()));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {};
}

std::string version_of_kernel_release(std::string_view release)
{
    std::string version;
    // Missing numbers are 0.
    for (int i = 0; i < 3; ++i)
    {
        const std::size_t digits = std::min(release.find_first_not_of("0123456789"), release.size());
        if (i == 0 && digits == 0)
            return {};
        if (i > 0)
            version += '.';
        version += digits == 0 ? "0" : release.substr(0, digits);
        release.remove_prefix(digits);
        // Anything but a dot ends the numbers: "-13-amd64".
        const bool goes_on = release.starts_with('.');
        release = goes_on ? release.substr(1) : std::string_view();
    }
    return version;
}

} // namespace ov1

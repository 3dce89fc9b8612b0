// The system's name from the text of /etc/os-release.
#pragma once

#include <string>
#include <string_view>

namespace ov1
{

/// The value of PRETTY_NAME without its quotes, "Debian GNU/Linux 12 (bookworm)"; empty if it is missing.
/// Format: https://www.freedesktop.org/software/systemd/man/latest/os-release.html
std::string pretty_name_of_os_release(std::string_view text);

/// The first three numbers of a kernel release: "6.1.0-13-amd64" gives "6.1.0", "6.1" gives "6.1.0". Empty if the text
/// does not begin with a number.
std::string version_of_kernel_release(std::string_view release);

} // namespace ov1

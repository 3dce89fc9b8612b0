// Name and version of the video host that this process serves.
#pragma once

#include "shared/version.h"

#include <string>
#include <string_view>

namespace ov1
{

/// The host reports both when it connects. Until then the name is "Video host" and the version is zero.
struct connected_host
{
    std::string name = "Video host"; ///< the host's bundle identifier
    ov1::version version;
};

/// One value for the whole process. Any thread.
void set_connected_host(connected_host host);
connected_host get_connected_host();

/// Reads up to four numbers joined by dots, as in "10.6.5". Reading stops at the first part that is missing or is not
/// a 32-bit number; that part and all after it are 0.
version version_from_text(std::string_view text);
/// The first three numbers of a version: "10.6.5".
std::string version_text(const version& v);

} // namespace ov1

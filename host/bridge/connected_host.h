// Who the video host of this process is.
#pragma once

#include "shared/version.h"

#include <string>
#include <string_view>

namespace ov1
{

/// As the host named itself when it connected; until then "Video host" and zeros.
struct connected_host
{
    std::string name = "Video host"; ///< the identifier of its bundle
    ov1::version version;
};

/// For the whole process, from any thread.
void set_connected_host(connected_host host);
connected_host get_connected_host();

/// Up to four numbers joined by dots, as in "10.6.5"; what is missing, or no number of 32 bits, is 0, and so is all
/// that follows it.
version version_from_text(std::string_view text);
/// The first three numbers of a version: "10.6.5".
std::string version_text(const version& v);

} // namespace ov1

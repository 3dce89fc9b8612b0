// The steps of file handling that every system does in its own way.
#pragma once

#include <string>

namespace ov1
{

/// What stands before the last separator; "." without one.
std::string folder_of(const std::string& path);

/// Whether a path is a name of a file that some process holds open, like those that /dev/stdout leads to, rather than a
/// place in a folder.
bool stands_for_open_file(const std::string& path);

/// Renames within one file system and never replaces. Sets errno on failure, EEXIST where the name is taken.
[[nodiscard]] bool rename_to_new(const std::string& from, const std::string& to);

} // namespace ov1

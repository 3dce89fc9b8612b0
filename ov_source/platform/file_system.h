// File operations that differ between Linux and macOS.
#pragma once

#include <string>

namespace ov1
{

/// The part of a path before the last separator; "." if there is none.
/// Looks at the text only; the folder need not exist.
std::string folder_of(const std::string& path);

/// Whether a path names an open file of some process, like the target of /dev/stdout, and not an entry of a folder.
/// Such a file can be written to, but not replaced.
bool stands_for_open_file(const std::string& path);

/// Renames within one file system and never replaces a file. Sets errno on failure; EEXIST when `to` exists.
[[nodiscard]] bool rename_to_new(const std::string& from, const std::string& to);

} // namespace ov1

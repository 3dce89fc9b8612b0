// Folders and their entries.
#pragma once

#include <string>
#include <vector>

namespace ov1
{

/// Whether the path, or the target of a symbolic link, is a folder; false if that cannot be found out.
bool is_folder(const std::string& path);

/// The portable implementation of iutils::list_dir: entries in the system's order, without "." and "..", symbolic links
/// as files. Returns false for an empty path, for two null outputs, and when the folder cannot be read.
[[nodiscard]] bool list_folder(const std::string& path, std::vector<std::string>* files,
                               std::vector<std::string>* directories, bool full_paths);

} // namespace ov1

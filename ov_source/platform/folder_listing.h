// What a folder holds.
#pragma once

#include <string>
#include <vector>

namespace ov1
{

/// iutils::list_dir on every system.
[[nodiscard]] bool list_folder(const std::string& path, std::vector<std::string>* files,
                               std::vector<std::string>* directories, bool full_paths);

} // namespace ov1

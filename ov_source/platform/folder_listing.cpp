#include "platform/folder_listing.h"

#include <dirent.h>
#include <sys/stat.h>

namespace ov1
{

namespace
{

/// False for a symbolic link to a folder.
bool is_directory(const std::string& folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    // This file system does not report the type in the listing.
    struct stat facts;
    return lstat((folder + '/' + entry.d_name).c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

} // namespace

bool is_folder(const std::string& path)
{
    struct stat facts;
    return stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

bool list_folder(const std::string& path, std::vector<std::string>* files, std::vector<std::string>* directories,
                 bool full_paths)
{
    if (path.empty() || (files == nullptr && directories == nullptr))
        return false;
    DIR* directory = opendir(path.c_str());
    if (directory == nullptr)
        return false;
    const std::string prefix = !full_paths ? "" : path.ends_with('/') ? path : path + '/';
    // The outputs change only after everything was read.
    std::vector<std::string> found_files;
    std::vector<std::string> found_directories;
    while (const dirent* entry = readdir(directory))
    {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            (is_directory(path, *entry) ? found_directories : found_files).push_back(prefix + name);
    }
    closedir(directory);
    if (files != nullptr)
        *files = std::move(found_files);
    if (directories != nullptr)
        *directories = std::move(found_directories);
    return true;
}

} // namespace ov1

#include "platform/file_system.h"

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace ov1
{

std::string folder_of(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    // The separator of the root is its whole name.
    return slash == 0 ? "/" : path.substr(0, slash);
}

// Here the open files of a process are entries of /dev/fd themselves.
bool stands_for_open_file(const std::string& path) { return folder_of(path) == "/dev/fd"; }

bool rename_to_new(const std::string& from, const std::string& to)
{
    if (renamex_np(from.c_str(), to.c_str(), RENAME_EXCL) == 0)
        return true;
    if (errno != ENOTSUP && errno != EINVAL)
        return false;
    // The file system does not support the flag. A hard link also fails when the name exists.
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

} // namespace ov1

#include "platform/file_system.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>
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

bool stands_for_open_file(const std::string& path)
{
    struct statfs facts;
    // /dev/stdout and the like lead to /proc/PID/fd, where entries look like links but stand for open files.
    return statfs(folder_of(path).c_str(), &facts) == 0 && facts.f_type == PROC_SUPER_MAGIC;
}

bool rename_to_new(const std::string& from, const std::string& to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // The file system does not support the flag. A hard link also fails when the name exists.
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

} // namespace ov1

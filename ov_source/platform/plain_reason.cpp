#include "platform/plain_reason.h"

#include <cerrno>
#include <system_error>

namespace ov1
{

// Words for users in place of the C library's, for the errors that users can cause and repair.
std::string plain_reason(int error_number)
{
    switch (error_number)
    {
    case ENOENT:
        return "no such folder";
    case ENOTDIR:
        return "a part of the path is not a folder";
    case EISDIR:
        return "is a folder";
    case EEXIST:
        return "already exists";
    case EACCES:
    case EPERM:
        return "permission denied";
    case EROFS:
        return "the disk is read-only";
    case ENOSPC:
        return "the disk is full";
    case EDQUOT:
        return "the disk quota is used up";
    case EFBIG:
        return "the file would be larger than the system allows";
    case ENAMETOOLONG:
        return "the name is too long";
    case ELOOP:
        return "too many symbolic links";
    case EMFILE:
    case ENFILE:
        return "too many open files";
    case EPIPE:
        return "the reader has gone";
    case EIO:
        return "the disk reports an error";
    // Other errors are rare and keep the system's words.
    default:
        return std::generic_category().message(error_number);
    }
}

} // namespace ov1

#include "platform/atomic_file.h"

#include "platform/pending_file.h"
#include "platform/plain_reason.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ov1
{

namespace
{

constexpr std::size_t chunk_size = 1 << 16;

bool write_whole(const std::string& path, std::span<const std::uint8_t> bytes, existing_file rule, std::string& reason)
{
    pending_file file;
    return file.open(path, rule, reason) && file.write(bytes, reason) && file.commit(reason);
}

/// Reads until the end or until there is more than `limit`. Sets errno on failure.
bool read_to_end(int descriptor, std::vector<std::uint8_t>& bytes, std::size_t limit)
{
    struct stat facts;
    if (fstat(descriptor, &facts) != 0)
        return false;
    if (S_ISDIR(facts.st_mode))
    {
        errno = EISDIR;
        return false;
    }
    std::size_t used = 0;
    // One byte more than the file is said to hold, so that its end shows without growing.
    bytes.resize(facts.st_size > 0 ? std::min(static_cast<std::size_t>(facts.st_size), limit) + 1 : chunk_size);
    while (used <= limit)
    {
        if (used == bytes.size())
            bytes.resize(used + used / 2 + chunk_size);
        const ssize_t count = read(descriptor, bytes.data() + used, bytes.size() - used);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        if (count == 0)
            break;
        used += static_cast<std::size_t>(count);
    }
    bytes.resize(used);
    return true;
}

} // namespace

bool replace_file(const std::string& path, std::span<const std::uint8_t> bytes, std::string& reason)
{
    return write_whole(path, bytes, existing_file::replace, reason);
}

bool create_file(const std::string& path, std::span<const std::uint8_t> bytes, std::string& reason)
{
    return write_whole(path, bytes, existing_file::refuse, reason);
}

bool read_file(const std::string& path, std::vector<std::uint8_t>& bytes, std::string& reason, std::size_t limit)
{
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
    {
        reason = errno == ENOENT ? "no such file" : plain_reason(errno);
        return false;
    }
    std::vector<std::uint8_t> found;
    const bool was_read = read_to_end(descriptor, found, limit);
    if (!was_read)
        reason = plain_reason(errno);
    close(descriptor);
    if (!was_read)
        return false;
    if (found.size() > limit)
    {
        reason = "is larger than " + std::to_string(limit) + " bytes";
        return false;
    }
    bytes = std::move(found);
    return true;
}

bool remove_file(const std::string& path, std::string& reason)
{
    if (unlink(path.c_str()) == 0)
        return true;
    reason = errno == ENOENT ? "no such file" : plain_reason(errno);
    return false;
}

bool folder_takes_files(const std::string& folder, std::string& reason)
{
    pending_file probe;
    return probe.open(folder + "/.veridial-probe", existing_file::replace, reason);
}

} // namespace ov1

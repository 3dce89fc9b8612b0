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

/// The first read where the size is not known in advance, as with a pipe.
constexpr std::size_t chunk_size = 1 << 16;

/// After a failure the target is unchanged: the destructor removes the temporary file.
result<> write_whole(const std::string& path, std::span<const std::uint8_t> bytes, existing_file rule)
{
    pending_file file;
    if (auto opened = file.open(path, rule); !opened)
        return opened;
    if (auto written = file.write(bytes); !written)
        return written;
    return file.commit();
}

/// Unlike plain_reason, a missing file is named as such: the folder may well exist.
failure failed_on_existing(failure_kind kind, int error_number)
{
    return {kind, {}, error_number == ENOENT ? "no such file" : plain_reason(error_number)};
}

/// Reads until the end or until there is more than `limit`. Sets errno on failure.
bool read_to_end(int descriptor, std::vector<std::uint8_t>& bytes, std::size_t limit)
{
    // The size is only a hint: a pipe reports 0, and a file may grow while it is read.
    struct stat facts;
    if (fstat(descriptor, &facts) != 0)
        return false;
    if (S_ISDIR(facts.st_mode))
    {
        errno = EISDIR;
        return false;
    }
    std::size_t used = 0;
    // One byte more than the reported size, so that the end of the file is seen without another allocation.
    bytes.resize(facts.st_size > 0 ? std::min(static_cast<std::size_t>(facts.st_size), limit) + 1 : chunk_size);
    // One byte beyond the limit is enough to see that there is too much.
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

result<> replace_file(const std::string& path, std::span<const std::uint8_t> bytes)
{
    return write_whole(path, bytes, existing_file::replace);
}

result<> create_file(const std::string& path, std::span<const std::uint8_t> bytes)
{
    return write_whole(path, bytes, existing_file::refuse);
}

result<> write_file(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace)
{
    return may_replace ? replace_file(path, bytes) : create_file(path, bytes);
}

result<std::vector<std::uint8_t>> read_file(const std::string& path, std::size_t limit)
{
    // O_NOCTTY: a terminal must not become the controlling terminal of this process.
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return failed_on_existing(failure_kind::unreadable, errno);
    std::vector<std::uint8_t> bytes;
    // Kept, because close() may change errno.
    const int error_number = read_to_end(descriptor, bytes, limit) ? 0 : errno;
    close(descriptor);
    if (error_number != 0)
        return failure{failure_kind::unreadable, {}, plain_reason(error_number)};
    if (bytes.size() > limit)
        return failure{failure_kind::unreadable, {}, "is larger than " + std::to_string(limit) + " bytes"};
    return bytes;
}

result<> remove_file(const std::string& path)
{
    if (unlink(path.c_str()) != 0)
        return failed_on_existing(failure_kind::cannot_write, errno);
    return {};
}

result<> folder_takes_files(const std::string& folder)
{
    pending_file probe;
    // Never committed: the destructor removes the temporary file.
    return probe.open(folder + "/.veridial-probe", existing_file::replace);
}

} // namespace ov1

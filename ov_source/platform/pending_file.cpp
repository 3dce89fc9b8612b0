#include "platform/pending_file.h"

#include "platform/file_system.h"
#include "platform/plain_reason.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <mutex>
#include <random>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace ov1
{

namespace
{

constexpr int link_limit = 40; // the limit of Linux itself
/// For names that exist already. With 64 random bits the second attempt is very rare.
constexpr int name_attempts = 100;
// The first are the read, write and execute bits; the others add set-ID and sticky.
constexpr unsigned permission_bits = 0777;
constexpr unsigned all_mode_bits = 07777;
constexpr unsigned new_file_mode = 0666; // the user's umask applies

/// The temporary files of this process. They are created, renamed and removed under the mutex.
struct temporary_list
{
    std::mutex mutex;
    std::vector<std::string> paths;

    void forget(const std::string& path) { std::erase(paths, path); }
};

temporary_list& temporaries()
{
    static temporary_list& list = *new temporary_list; // never destroyed: signals may arrive during exit
    return list;
}

/// Replaces a path with the target of its symbolic links, which need not exist. Names of open files are kept. Sets
/// errno on failure.
bool follow_links(std::string& path)
{
    for (int i = 0; i < link_limit; ++i)
    {
        std::array<char, PATH_MAX> text;
        const ssize_t length = readlink(path.c_str(), text.data(), text.size());
        if (length < 0 || stands_for_open_file(path))
            return true; // not a link; opening the file reports any other error
        const std::string link(text.data(), static_cast<std::size_t>(length));
        path = link.starts_with('/') ? link : folder_of(path) + '/' + link;
    }
    errno = ELOOP;
    return false;
}

/// A hidden name that users can recognise if a crash leaves the file behind.
std::string random_leaf()
{
    std::random_device random;
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), ".veridial-%08x%08x.tmp", random(), random());
    return text.data();
}

/// File systems that cannot sync are accepted.
bool synced(int descriptor) { return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP; }

failure cannot_write(int error_number) { return {failure_kind::cannot_write, {}, plain_reason(error_number)}; }

/// Lets the new name survive a crash. The rename is already done, so failures are ignored.
void sync_folder(const std::string& folder)
{
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

} // namespace

pending_file::~pending_file() { discard(); }

result<> pending_file::open(const std::string& path, existing_file wanted_rule)
{
    // A file that was opened before and not committed is removed.
    discard();
    rule = wanted_rule;
    // Every branch that fails sets errno for the last line.
    struct stat facts;
    const bool exists = stat(path.c_str(), &facts) == 0;
    target = path;
    if (path.empty())
        errno = ENOENT;
    else if ((exists && S_ISDIR(facts.st_mode)) || path.ends_with('/'))
        errno = exists ? EISDIR : ENOENT;
    // Pipes and devices cannot be replaced.
    else if (exists && (!S_ISREG(facts.st_mode) || stands_for_open_file(path)))
        return open_direct(path);
    else if (!follow_links(target))
        errno = ELOOP;
    // The links led to an open file, as those of /dev/stdout do.
    else if (exists && stands_for_open_file(target))
        return open_direct(path);
    else if (rule == existing_file::refuse && (exists || target != path))
        errno = EEXIST; // a symbolic link without a target exists as well
    else if (!exists)
        return open_beside(new_file_mode);
    // A rename would replace a write-protected file, because it asks only for permission on the folder.
    else if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) == 0)
    {
        if (auto opened = open_beside(facts.st_mode & permission_bits); !opened)
            return opened;
        // Only the superuser may change the owner. Set-user-ID and similar bits are kept only for the old owner.
        const bool same_owner = fchown(descriptor, facts.st_uid, facts.st_gid) == 0;
        fchmod(descriptor, facts.st_mode & (same_owner ? all_mode_bits : permission_bits));
        return {};
    }
    return cannot_write(errno);
}

result<> pending_file::open_direct(const std::string& path)
{
    // Appends, because /dev/stdout may be a file that already has content.
    descriptor = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return cannot_write(errno);
    is_direct = true;
    written_path = path;
    return {};
}

result<> pending_file::open_beside(unsigned mode)
{
    const std::string folder = folder_of(target);
    for (int i = 0; i < name_attempts; ++i)
    {
        const std::string path = (folder == "/" ? folder : folder + '/') + random_leaf();
        // Locked, so that abandon_pending_files_and_exit knows every file that exists.
        const std::scoped_lock lock(temporaries().mutex);
        // O_EXCL and O_NOFOLLOW: never opens a file or a link that someone else has put there.
        descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
        if (descriptor >= 0)
        {
            written_path = path;
            temporaries().paths.push_back(path);
            return {};
        }
        // Another name would meet any other error again.
        if (errno != EEXIST)
            break;
    }
    return cannot_write(errno);
}

result<> pending_file::write(std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty())
    {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        // A signal arrived before a byte was written.
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            // No progress and no error: reported as a full disk, so that the loop ends.
            return cannot_write(count < 0 ? errno : ENOSPC);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return {};
}

bool pending_file::move_into_place() const
{
    // Locked, so that no signal arrives between the rename and the change of the list.
    const std::scoped_lock lock(temporaries().mutex);
    const bool moved = rule == existing_file::refuse ? rename_to_new(written_path, target)
                                                     : rename(written_path.c_str(), target.c_str()) == 0;
    if (moved)
        temporaries().forget(written_path);
    return moved;
}

result<> pending_file::commit()
{
    if (is_direct)
    {
        // Some file systems report write errors only at this point.
        if (close(std::exchange(descriptor, -1)) != 0)
            return cannot_write(errno);
        return {};
    }
    // Synced before the rename: otherwise a crash could leave an empty file under the new name.
    if (descriptor < 0 || !synced(descriptor) || !move_into_place())
    {
        // Made before discard(), which may change errno.
        failure why = cannot_write(descriptor < 0 ? EBADF : errno);
        discard();
        return why;
    }
    close(std::exchange(descriptor, -1));
    written_path.clear();
    sync_folder(folder_of(target));
    return {};
}

void pending_file::discard()
{
    if (descriptor >= 0)
        close(std::exchange(descriptor, -1));
    // A file that is written directly existed before and stays.
    if (!is_direct && !written_path.empty())
    {
        const std::scoped_lock lock(temporaries().mutex);
        unlink(written_path.c_str());
        temporaries().forget(written_path);
    }
    written_path.clear();
    is_direct = false;
}

void abandon_pending_files_and_exit(int exit_code)
{
    // Never unlocked: threads that are about to create or rename a temporary file block until the process ends.
    temporaries().mutex.lock();
    for (const std::string& path : temporaries().paths)
        unlink(path.c_str());
    _exit(exit_code);
}

} // namespace ov1

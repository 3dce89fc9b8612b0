// A file that is written under a temporary name and renamed when it is complete.
#pragma once

#include "shared/result.h"

#include <cstdint>
#include <span>
#include <string>

namespace ov1
{

enum class existing_file
{
    replace, ///< the new file replaces the old one and keeps its mode and, where permitted, its owner
    refuse,  ///< an old file is kept, even if it appears while the new one is written
};

/// Writes to a temporary file in the target's folder. commit() renames it to the target in one step; without a commit
/// the destructor removes it. A full disk, a crash or a failure therefore leaves an old file unchanged. A symbolic link
/// is followed: its target is replaced, not the link. If the target exists and is not a regular file (a pipe, a device,
/// /dev/stdout), the bytes are written directly to it, whatever the rule. An object may be used by one thread at a
/// time. Failures are failure_kind::cannot_write with a short reason and no subject.
class pending_file
{
public:
    pending_file() = default;
    ~pending_file();
    pending_file(const pending_file&) = delete;
    pending_file& operator=(const pending_file&) = delete;

    /// Creates the temporary file. Already fails when the target is a folder, a write-protected file, or a file that
    /// exists and must not be replaced.
    result<> open(const std::string& path, existing_file rule);

    /// Appends all bytes.
    result<> write(std::span<const std::uint8_t> bytes);

    /// For writers that need a file name or a descriptor: those of the temporary file, or of the target when it is
    /// written directly.
    const std::string& get_path() const { return written_path; }
    int get_descriptor() const { return descriptor; }

    /// Flushes the bytes to the disk and renames the file to the target. Call it once, last.
    result<> commit();

private:
    /// Opens an existing pipe, device or open file, to append to it.
    result<> open_direct(const std::string& path);
    /// Creates the temporary file in the target's folder. The umask applies to the mode.
    result<> open_beside(unsigned mode);
    /// Renames the temporary file to the target. Sets errno on failure.
    bool move_into_place() const;
    /// Closes the file and removes it if it is temporary. The object can then be opened again.
    void discard();

    /// The final path, with symbolic links followed.
    std::string target;
    /// The temporary file, or the target when it is written directly; empty if nothing is open.
    std::string written_path;
    existing_file rule = existing_file::replace;
    /// -1 if nothing is open.
    int descriptor = -1;
    bool is_direct = false;
};

/// Removes all temporary files of this process and ends it at once with the exit code, without running destructors. For
/// the thread that waits for signals: meanwhile no other thread can create or rename a temporary file.
[[noreturn]] void abandon_pending_files_and_exit(int exit_code);

} // namespace ov1

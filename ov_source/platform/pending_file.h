// A file that is written beside its place and takes it only when it is whole.
#pragma once

#include "shared/result.h"

#include <cstdint>
#include <span>
#include <string>

namespace ov1
{

enum class existing_file
{
    replace, ///< the new file takes the place of the old one and keeps its mode and, where allowed, its owner
    refuse,  ///< an old one stays, also when it appears while the new one is being written
};

/// Writes under a name of its own in the folder of the target; commit() gives it the target's name in one step, and
/// without a commit the destructor removes it. So a full disk, a crash or a refusal leaves the old file as it was.
/// A symbolic link is followed, so that its target is replaced and not the link. Where the target exists and is no
/// regular file (a pipe, a device, /dev/stdout) the bytes go straight into it, whatever the rule says.
/// One thread at a time uses one object. Failures are failure_kind::cannot_write with a short reason and no subject.
class pending_file
{
public:
    pending_file() = default;
    ~pending_file();
    pending_file(const pending_file&) = delete;
    pending_file& operator=(const pending_file&) = delete;

    /// Makes the temporary. Fails early where commit() would: on a folder, on a write-protected old file, or on an old
    /// file that is to be refused.
    result<> open(const std::string& path, existing_file rule);

    /// Appends all bytes.
    result<> write(std::span<const std::uint8_t> bytes);

    /// For writers that need a name or a descriptor of their own. The name is the target's where it is written
    /// straight into.
    const std::string& get_path() const { return written_path; }
    int get_descriptor() const { return descriptor; }

    /// Brings the bytes to the disk and the file to its place. Called once, last.
    result<> commit();

private:
    result<> open_straight(const std::string& path);
    result<> open_beside(unsigned mode);
    bool move_into_place() const;
    void discard();

    std::string target;
    std::string written_path;
    existing_file rule = existing_file::replace;
    int descriptor = -1;
    bool straight = false;
};

/// Removes every temporary of this process and ends it at once with the exit code, for the thread that waits for
/// signals: other threads can neither make a new temporary nor finish one meanwhile. Runs no destructors.
[[noreturn]] void abandon_pending_files_and_exit(int exit_code);

} // namespace ov1

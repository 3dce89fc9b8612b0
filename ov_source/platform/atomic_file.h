// Whole files: read at once, written so that a failure leaves the old one, and removed.
// Failures carry a short reason for an error line ("no such folder", "permission denied", "the disk is full") and no
// subject: the caller knows how the user named the file. Every function here may be called on any thread.
#pragma once

#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

/// Writes a file completely or not at all (pending_file). After a failure (cannot_write) an old file is unchanged; a
/// replaced file keeps its mode. A pipe or device is written to directly.
result<> replace_file(const std::string& path, std::span<const std::uint8_t> bytes);

/// The same, but an existing file is never replaced: "already exists", even if the file appears during the call.
result<> create_file(const std::string& path, std::span<const std::uint8_t> bytes);

/// replace_file if an existing file may be replaced, else create_file.
result<> write_file(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace);

/// Reads a file, pipe or device to its end. Folders and content of more than `limit` bytes are failures (unreadable).
/// Exactly `limit` bytes are accepted.
result<std::vector<std::uint8_t>> read_file(const std::string& path, std::size_t limit);

/// Removes a file, or a symbolic link and not its target; never a folder. Failures are cannot_write.
result<> remove_file(const std::string& path);

/// Fails (cannot_write) when no new file can be made in the folder. Creates and removes a temporary file to find out.
/// For a check before long work.
result<> folder_takes_files(const std::string& folder);

} // namespace ov1

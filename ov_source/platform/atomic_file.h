// Whole files: read at once, written so that a failure leaves the old one, and removed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

/// Writes a file whole or not at all, by way of pending_file: an old file keeps its mode and stays as it was when
/// anything fails, and a pipe or device is written straight into. The reason is a short text for an error line:
/// "no such folder", "permission denied", "the disk is full", "is a folder". Any thread.
[[nodiscard]] bool replace_file(const std::string& path, std::span<const std::uint8_t> bytes, std::string& reason);

/// The same, but an old file is never replaced: "exists already", also when it appears at the last moment.
[[nodiscard]] bool create_file(const std::string& path, std::span<const std::uint8_t> bytes, std::string& reason);

/// Reads a file, pipe or device to its end. A folder, and more than `limit` bytes, are refused.
[[nodiscard]] bool read_file(const std::string& path, std::vector<std::uint8_t>& bytes, std::string& reason,
                             std::size_t limit);

/// Removes a file, or a link and not what it leads to; never a folder.
[[nodiscard]] bool remove_file(const std::string& path, std::string& reason);

/// Whether a new file can be made in a folder, found out by making one and removing it.
[[nodiscard]] bool folder_takes_files(const std::string& folder, std::string& reason);

} // namespace ov1

// The last step of every output: bytes into the file that the user named.
#pragma once

#include "command_line/problem.h"

#include <cstdint>
#include <span>
#include <string>

namespace ov1
{

/// Writes a file whole or not at all. Unless it may be replaced, a file that has appeared meanwhile is left and told.
[[nodiscard]] bool write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace,
                                problem& why);

} // namespace ov1

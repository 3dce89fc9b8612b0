// The last step of every output: bytes into the file that the user named.
#pragma once

#include "shared/result.h"

#include <cstdint>
#include <span>
#include <string>

namespace ov1
{

/// Writes a file whole or not at all. Unless it may be replaced, a file that exists by now is left, and a failure.
result<> write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace);

} // namespace ov1

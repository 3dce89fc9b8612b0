// Writes output files.
#pragma once

#include "shared/result.h"

#include <cstdint>
#include <span>
#include <string>

namespace ov1
{

/// Writes a file completely or not at all. Unless it may be replaced, an existing file is kept and is a failure. The
/// path is the subject of the failure.
/// Pipes and devices are written to directly. Any thread.
result<> write_output(const std::string& path, std::span<const std::uint8_t> bytes, bool may_replace);

} // namespace ov1

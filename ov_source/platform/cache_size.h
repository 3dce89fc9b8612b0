// The processor's caches.
#pragma once

#include <cstddef>

namespace ov1
{

/// The second-level cache of one core, in bytes; 1 MiB where the system does not say. Asked once per process.
std::size_t level_2_cache_bytes();

} // namespace ov1

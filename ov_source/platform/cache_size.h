// The size of the processor's second-level cache.
#pragma once

#include <cstddef>

namespace ov1
{

/// The second-level cache of one core, in bytes; 1 MiB where the system does not report it. Queried once per
/// process; any thread.
std::size_t level_2_cache_bytes();

} // namespace ov1

#include "platform/cache_size.h"

#ifdef __APPLE__
#include <sys/sysctl.h>
#else
#include <unistd.h>
#endif

namespace ov1
{

namespace
{

/// Assumed where the system reports nothing; common for current processors.
constexpr std::size_t usual = 1024 * 1024;

/// 0 if the system does not report it.
std::size_t reported_bytes()
{
#ifdef __APPLE__
    std::size_t bytes = 0, size = sizeof bytes;
    return sysctlbyname("hw.l2cachesize", &bytes, &size, nullptr, 0) == 0 ? bytes : 0;
#else
    // 0 or -1 where the C library cannot find out, as in some virtual machines.
    const long bytes = sysconf(_SC_LEVEL2_CACHE_SIZE);
    return bytes > 0 ? static_cast<std::size_t>(bytes) : 0;
#endif
}

} // namespace

std::size_t level_2_cache_bytes()
{
    // Initialised once, even when several threads call this first.
    static const std::size_t bytes = reported_bytes() > 0 ? reported_bytes() : usual;
    return bytes;
}

} // namespace ov1

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

constexpr std::size_t usual = 1024 * 1024;

std::size_t reported_bytes()
{
#ifdef __APPLE__
    std::size_t bytes = 0, size = sizeof bytes;
    return sysctlbyname("hw.l2cachesize", &bytes, &size, nullptr, 0) == 0 ? bytes : 0;
#else
    const long bytes = sysconf(_SC_LEVEL2_CACHE_SIZE);
    return bytes > 0 ? static_cast<std::size_t>(bytes) : 0;
#endif
}

} // namespace

std::size_t level_2_cache_bytes()
{
    static const std::size_t bytes = reported_bytes() > 0 ? reported_bytes() : usual;
    return bytes;
}

} // namespace ov1

#include "host/bridge/connected_host.h"

#include <charconv>
#include <mutex>
#include <utility>

namespace ov1
{

namespace
{

/// The host with its mutex, as one object that is made at first use.
struct shared_host
{
    std::mutex lock;
    connected_host host;
};

shared_host& shared()
{
    static shared_host one;
    return one;
}

} // namespace

void set_connected_host(connected_host host)
{
    const std::scoped_lock guard(shared().lock);
    shared().host = std::move(host);
}

connected_host get_connected_host()
{
    const std::scoped_lock guard(shared().lock);
    return shared().host;
}

version version_from_text(std::string_view text)
{
    version v;
    // The text comes from another program: what does not read as a number ends the version and is no failure.
    for (std::int32_t* number : {&v.major, &v.minor, &v.patch, &v.build})
    {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), *number);
        // A number beyond 32 bits is an error too, and leaves its part at 0.
        if (error != std::errc())
            break;
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        if (!text.starts_with('.'))
            break;
        text.remove_prefix(1);
    }
    return v;
}

std::string version_text(const version& v)
{
    return std::to_string(v.major) + '.' + std::to_string(v.minor) + '.' + std::to_string(v.patch);
}

} // namespace ov1

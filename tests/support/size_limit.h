// Files that end too early, as on a full disk.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace ov1
{

/// While it lives, files of this process end at so many bytes.
class size_limit
{
public:
    explicit size_limit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit tight{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~size_limit() { setrlimit(RLIMIT_FSIZE, &before); }
    size_limit& operator=(size_limit&&) = delete;

private:
    rlimit before{};
};

} // namespace ov1

// Permissions for the length of a scope, also where the tests run as the superuser.
#pragma once

#include <cstdlib>
#include <unistd.h>

namespace ov1
{

/// While it lives, the superuser's process has the rights of the user "nobody"; other processes keep what they have.
class plain_user
{
public:
    ~plain_user()
    {
        if (changed && seteuid(0) != 0)
            std::abort();
    }
    plain_user& operator=(plain_user&&) = delete;

private:
    bool changed = geteuid() == 0 && seteuid(65534) == 0;
};

} // namespace ov1

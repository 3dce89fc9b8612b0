// Replaces the utilities of the process: for tests, and for a program with its own.
#pragma once

#include "platform/iutils.h"

namespace ov1
{

/// While it exists, iutils::get_instance() returns the replacement, which must outlive it. Guards may be nested. Other
/// threads see the change as well: none of them may be calling the instance while a guard is created or destroyed.
class utils_guard
{
public:
    explicit utils_guard(iutils& replacement)
        : previous(iutils::exchange_instance(&replacement))
    {
    }
    /// Restores the instance of before.
    ~utils_guard() { iutils::exchange_instance(previous); }
    utils_guard(const utils_guard&) = delete;
    utils_guard& operator=(const utils_guard&) = delete;

private:
    /// Null for the system's own.
    iutils* previous;
};

} // namespace ov1

// Other utilities for the length of a scope: for tests, and for a program that brings its own.
#pragma once

#include "platform/iutils.h"

namespace ov1
{

/// While it lives, iutils::get_instance() gives the replacement, which must live longer. Scopes nest; other threads see
/// the change too, so none of them may be amid a call to the instance when a scope begins or ends.
class utils_guard
{
public:
    explicit utils_guard(iutils& replacement)
        : previous(iutils::exchange_instance(&replacement))
    {
    }
    ~utils_guard() { iutils::exchange_instance(previous); }
    utils_guard(const utils_guard&) = delete;
    utils_guard& operator=(const utils_guard&) = delete;

private:
    iutils* previous;
};

} // namespace ov1

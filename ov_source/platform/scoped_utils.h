// Other utilities for the length of a scope: for tests, and for a program that brings its own.
#pragma once

#include "platform/iutils.h"

namespace ov1
{

/// While it lives, iutils::get_instance() gives the replacement, which must live longer. Scopes nest; other threads see
/// the change too, so none of them may be amid a call to the instance when a scope begins or ends.
class scoped_utils
{
public:
    explicit scoped_utils(iutils& replacement)
        : previous(iutils::exchange_instance(&replacement))
    {
    }
    ~scoped_utils() { iutils::exchange_instance(previous); }
    scoped_utils(const scoped_utils&) = delete;
    scoped_utils& operator=(const scoped_utils&) = delete;

private:
    iutils* previous;
};

} // namespace ov1

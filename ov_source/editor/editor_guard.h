// Makes the editor available to components for the time that a program shows windows.
#pragma once

#include "framework/view/toolkit_guard.h"

namespace ov1
{

/// The constructor installs the editor's factory, the windows and the alerts; the destructor removes them. One at a
/// time, on the editor's thread.
class editor_guard
{
public:
    editor_guard();
    ~editor_guard();
    editor_guard(const editor_guard&) = delete;
    editor_guard& operator=(const editor_guard&) = delete;

private:
    /// Set up first and removed last: the editors need it.
    toolkit_guard toolkit;
};

} // namespace ov1

// Makes the editor available to components, for as long as a program shows windows.
#pragma once

#include "framework/view/toolkit_guard.h"

namespace ov1
{

/// Installs the editor, the windows and the alerts, and removes them at its end. One at a time, on the editor's thread.
class editor_guard
{
public:
    editor_guard();
    ~editor_guard();
    editor_guard(const editor_guard&) = delete;
    editor_guard& operator=(const editor_guard&) = delete;

private:
    toolkit_guard toolkit;
};

} // namespace ov1

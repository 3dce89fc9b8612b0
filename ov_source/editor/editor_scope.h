// Makes the editor available to components, for as long as a program shows windows.
#pragma once

#include "framework/view/toolkit_guard.h"

namespace ov1
{

/// Installs the editor, the windows and the alerts, and removes them at its end. One at a time, on the editor's thread.
class editor_scope
{
public:
    editor_scope();
    ~editor_scope();
    editor_scope(const editor_scope&) = delete;
    editor_scope& operator=(const editor_scope&) = delete;

private:
    toolkit_guard toolkit;
};

} // namespace ov1

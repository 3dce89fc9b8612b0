// Copies and pastes the grade for the toolbar, and reports failures.
#pragma once

#include "editor/toolbar/editor_dialogs.h"
#include "editor/toolbar/history_actions.h"
#include "framework/icomponent_v1.h"

#include <memory>

namespace ov1
{

/// Dialogs and history outlive it. Without a component both do nothing.
class clipboard_actions
{
public:
    clipboard_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs, history_actions& history);

    /// Other editors of the user, in this or another process, can paste the grade.
    void copy() const;
    /// One undo step.
    void paste() const;

private:
    const std::weak_ptr<icomponent_v1> component;
    const editor_dialogs& dialogs;
    history_actions& history;
};

} // namespace ov1

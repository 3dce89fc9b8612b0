// Undo, redo and the menu of the undo history, whose steps it names.
#pragma once

#include "editor/toolbar/editor_dialogs.h"
#include "editor/toolbar/step_names.h"
#include "framework/icomponent_v1.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ov1
{

/// The dialogs outlive it. Without a component nothing happens. Belongs to the editor's thread.
class history_actions
{
public:
    history_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs);

    /// What undo and redo do instead of stepping on the component's own history; an empty one leaves its step as it is.
    void set_callbacks(std::function<void()> on_undo, std::function<void()> on_redo);

    /// One step; nothing at the ends of the history and during a drag.
    void undo();
    void redo();
    /// Always true with a callback.
    bool can_undo() const;
    bool can_redo() const;

    /// Makes one undo step of everything that `change` does.
    void make_step(const std::function<void(icomponent_v1&)>& change) const;
    /// Names the step that was just made; a plain text in the user's language.
    void label_step(std::string name);

    /// What the menu offers; see list_history.
    std::vector<history_step> list() const;
    /// Opens beneath the view and goes to the chosen step.
    void show_menu(const VSTGUI::CView& view);

private:
    const std::weak_ptr<icomponent_v1> component;
    const editor_dialogs& dialogs;
    /// Of the steps that label_step has named.
    step_labels labels;
    // Empty for the component's own history.
    std::function<void()> undo_callback;
    std::function<void()> redo_callback;
};

} // namespace ov1

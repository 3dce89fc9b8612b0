// Turns key presses into the editor's actions.
#pragma once

#include "editor/controls/modal/key_table.h"
#include "shared/language_id.h"

#include <functional>

namespace ov1
{

/// Watches the frame's keys during its lifetime; the frame outlives it. Keys that are typed into a text field, and all
/// keys while a question is open, are ignored.
class editor_keys : public VSTGUI::IKeyboardHook
{
public:
    /// on_action gets the action and its key; it returns true if it has handled it.
    editor_keys(VSTGUI::CFrame& frame, std::function<bool(key_action, const VSTGUI::KeyboardEvent&)> on_action);
    ~editor_keys() noexcept override;
    editor_keys(const editor_keys&) = delete;
    editor_keys& operator=(const editor_keys&) = delete;

    /// Consumes the event if on_action has handled its action. Keys without an action pass.
    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame* frame) override;

private:
    VSTGUI::CFrame& frame;
    const std::function<bool(key_action, const VSTGUI::KeyboardEvent&)> on_action;
};

/// Shows the list of keys and mouse gestures over the window, in the user's language.
void show_help(VSTGUI::CFrame& frame, language_id language);

} // namespace ov1

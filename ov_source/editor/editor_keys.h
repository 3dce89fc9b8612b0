// The frame's keys as the editor's actions.
#pragma once

#include "editor/controls/modal/key_table.h"
#include "shared/language_id.h"

#include <functional>

namespace ov1
{

/// Watches the frame's keys for as long as it lives; the frame outlives it. Keys that are typed into a field, and those
/// within a question, are left alone.
class editor_keys : public VSTGUI::IKeyboardHook
{
public:
    /// act is told the action with its key, and says whether it has taken it.
    editor_keys(VSTGUI::CFrame& frame, std::function<bool(key_action, const VSTGUI::KeyboardEvent&)> act);
    ~editor_keys() noexcept override;
    editor_keys(const editor_keys&) = delete;
    editor_keys& operator=(const editor_keys&) = delete;

    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame* frame) override;

private:
    VSTGUI::CFrame& frame;
    const std::function<bool(key_action, const VSTGUI::KeyboardEvent&)> act;
};

/// Lists keys and mouse gestures over the window, in the user's language.
void show_help(VSTGUI::CFrame& frame, language_id language);

} // namespace ov1

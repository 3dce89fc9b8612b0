#include "editor/editor_keys.h"

#include "editor/controls/modal/help_overlay.h"
#include "platform/iutils.h"

#include <utility>

namespace ov1
{

using namespace VSTGUI;

editor_keys::editor_keys(CFrame& frame, std::function<bool(key_action, const KeyboardEvent&)> on_action)
    : frame(frame)
    , on_action(std::move(on_action))
{
    frame.registerKeyboardHook(this);
}

editor_keys::~editor_keys() noexcept { frame.unregisterKeyboardHook(this); }

void editor_keys::onKeyboardEvent(KeyboardEvent& event, CFrame*)
{
    // A text field needs its letters, and an open question gets all keys.
    if (event.consumed || frame.getModalView() || dynamic_cast<CTextEdit*>(frame.getFocusView()))
        return;
    if (const auto action = find_key_action(event))
        event.consumed = on_action(*action, event);
}

void show_help(CFrame& frame, language_id language)
{
    const auto say = [language](const char* literal) { return iutils::translate(language, literal); };
    std::vector<std::vector<help_row>> groups(2);
    for (const key_row& row : get_key_table())
        groups[0].push_back({say(row.keys), say(row.text)});
    for (const mouse_row& row : get_mouse_table())
        groups[1].push_back({say(row.gesture), say(row.text)});
    // The only failure is a frame that is being closed.
    static_cast<void>(show_help_overlay(frame, say("{en:Keys and mouse}{de:Tasten und Maus}"), groups));
}

} // namespace ov1

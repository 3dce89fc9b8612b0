#include "editor/toolbar/clipboard_actions.h"

#include "presets/grade_clipboard.h"

#include <utility>

namespace ov1
{

clipboard_actions::clipboard_actions(std::weak_ptr<icomponent_v1> component, const editor_dialogs& dialogs,
                                     history_actions& history)
    : component(std::move(component))
    , dialogs(dialogs)
    , history(history)
{
}

void clipboard_actions::copy() const
{
    const auto effect = component.lock();
    if (!effect)
        return;
    if (const auto copied = copy_grade(*effect); !copied)
        dialogs.report("Veridial", "{en:The grade cannot be copied: }{de:Das Grading kann nicht kopiert werden: }",
                       copied.error());
}

void clipboard_actions::paste() const
{
    const auto effect = component.lock();
    if (!effect)
        return;
    if (const auto pasted = paste_grade(*effect); pasted)
        // The paste has made its step: the label goes to the position after it.
        history.label_step(dialogs.translate("{en:Pasted grade}{de:Eingesetztes Grading}"));
    else
        dialogs.report("Veridial", "{en:There is no grade to paste: }{de:Es gibt kein Grading zum Einsetzen: }",
                       pasted.error());
}

} // namespace ov1

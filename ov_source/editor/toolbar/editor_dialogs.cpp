#include "editor/toolbar/editor_dialogs.h"

#include "editor/controls/modal/modal_panel.h"
#include "framework/view/toolkit_guard.h"
#include "platform/iutils.h"

#include "vstgui/lib/cframe.h"

#include <optional>
#include <utility>

namespace ov1
{

namespace
{

modal_question translated(language_id language, const editor_question& question)
{
    const auto text = [&](const std::string& literal) { return iutils::translate(language, literal); };
    modal_question made;
    made.title = text(question.title);
    made.message = text(question.message);
    made.confirm = text(question.yes);
    made.cancel = text(question.no);
    return made;
}

} // namespace

void ask(VSTGUI::CFrame& frame, language_id language, const editor_question& question,
         std::function<void(bool yes)> answered)
{
    if (frame.getModalView())
        return;
    [[maybe_unused]] const bool shown =
        show_modal_panel(frame, translated(language, question),
                         [answered = std::move(answered)](const modal_answer& a) { answered(a.confirmed); });
}

void ask_for_text(VSTGUI::CFrame& frame, language_id language, const editor_question& question,
                  const std::string& offered, std::function<void(std::string text)> answered)
{
    if (frame.getModalView())
        return;
    modal_question made = translated(language, question);
    made.name = offered;
    [[maybe_unused]] const bool shown = show_modal_panel(frame, made,
                                                         [answered = std::move(answered)](const modal_answer& a)
                                                         {
                                                             if (a.confirmed)
                                                                 answered(a.name);
                                                         });
}

void tell(VSTGUI::CFrame& frame, language_id language, const std::string& title, const std::string& message)
{
    ask(frame, language, {title, message, "OK", ""}, [](bool) {});
}

bool ask_and_wait(VSTGUI::CFrame& frame, language_id language, const editor_question& question)
{
    if (frame.getModalView())
        return false;
    const auto answer = std::make_shared<std::optional<bool>>();
    const bool asked = show_modal_panel(frame, translated(language, question),
                                        [answer](const modal_answer& a) { *answer = a.confirmed; });
    // The panel holds the answer too: once it alone is left here, the panel has gone without one.
    while (asked && !answer->has_value() && answer.use_count() > 1)
        toolkit_guard::process_events();
    return answer->value_or(false);
}

} // namespace ov1

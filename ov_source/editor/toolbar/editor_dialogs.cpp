#include "editor/toolbar/editor_dialogs.h"

#include "editor/controls/modal/modal_panel.h"
#include "framework/view/toolkit_guard.h"
#include "platform/iutils.h"

#include "vstgui/lib/cframe.h"

#include <memory>
#include <optional>
#include <utility>

namespace ov1
{

namespace
{

modal_question translated(const editor_dialogs& dialogs, const editor_question& question)
{
    modal_question made;
    made.title = dialogs.translate(question.title);
    made.message = dialogs.translate(question.message);
    made.confirm = dialogs.translate(question.yes);
    made.cancel = dialogs.translate(question.no);
    return made;
}

/// False if another panel is open, or if the frame is being closed.
bool show_panel(VSTGUI::CFrame& frame, const modal_question& question,
                std::function<void(const modal_answer&)> on_answer)
{
    return !frame.getModalView() && show_modal_panel(frame, question, std::move(on_answer));
}

} // namespace

editor_dialogs::editor_dialogs(VSTGUI::CFrame& frame, language_id language)
    : frame(frame)
    , language(language)
{
}

std::string editor_dialogs::translate(const std::string& literal) const { return iutils::translate(language, literal); }

void editor_dialogs::ask(const editor_question& question, std::function<void()> on_yes) const
{
    show_panel(frame, translated(*this, question),
               [on_yes = std::move(on_yes)](const modal_answer& answer)
               {
                   if (answer.confirmed)
                       on_yes();
               });
}

void editor_dialogs::ask_for_text(const editor_question& question, const std::string& offered,
                                  std::function<void(const std::string& text)> on_text) const
{
    // A question with a name has a text field.
    modal_question made = translated(*this, question);
    made.name = offered;
    show_panel(frame, made,
               [on_text = std::move(on_text)](const modal_answer& answer)
               {
                   if (answer.confirmed)
                       on_text(answer.name);
               });
}

void editor_dialogs::show(const std::string& title, const std::string& message) const
{
    ask({title, message, "OK", ""}, [] {});
}

void editor_dialogs::report(const std::string& title, const std::string& lead, const failure& why) const
{
    show(title, translate(lead) + why.reason);
}

bool editor_dialogs::ask_and_wait(const editor_question& question) const
{
    const auto answer = std::make_shared<std::optional<bool>>();
    const bool is_shown = show_panel(frame, translated(*this, question),
                                     [answer](const modal_answer& given) { *answer = given.confirmed; });
    // The panel owns a second reference to the answer. If it goes without an answer, the frame was closed.
    while (is_shown && !answer->has_value() && answer.use_count() > 1)
        toolkit_guard::process_events();
    return answer->value_or(false);
}

} // namespace ov1

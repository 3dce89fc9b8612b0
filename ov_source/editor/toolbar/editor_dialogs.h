// The questions that the editor asks, as panels of its own within its frame.
#pragma once

#include "shared/language_id.h"

#include "vstgui/lib/vstguifwd.h"

#include <functional>
#include <string>

namespace ov1
{

/// Texts are localised literals or plain text. The answer arrives later, on the editor's thread, and never when the
/// frame goes away first. A question that comes while another one stands is not asked.
struct editor_question
{
    std::string title;
    std::string message;
    std::string yes;
    std::string no = "{en:Cancel}{de:Abbrechen}"; ///< none where it is empty
};

void ask(VSTGUI::CFrame& frame, language_id language, const editor_question& question,
         std::function<void(bool yes)> answered);

/// Asks for one line of text, offering one. Without an answer, nothing is called.
void ask_for_text(VSTGUI::CFrame& frame, language_id language, const editor_question& question,
                  const std::string& offered, std::function<void(std::string text)> answered);

/// Says something.
void tell(VSTGUI::CFrame& frame, language_id language, const std::string& title, const std::string& message);

/// The same as a call that returns with the answer; the frame goes on working meanwhile. False when it goes away.
bool ask_and_wait(VSTGUI::CFrame& frame, language_id language, const editor_question& question);

} // namespace ov1

// The editor's questions and messages, as panels inside its frame.
#pragma once

#include "shared/failure.h"
#include "shared/language_id.h"

#include "vstgui/lib/vstguifwd.h"

#include <functional>
#include <string>

namespace ov1
{

/// Localised literals or plain text.
struct editor_question
{
    std::string title;
    std::string message;                          ///< or the label of the text field
    std::string yes;                              ///< the button that agrees; the Return key presses it
    std::string no = "{en:Cancel}{de:Abbrechen}"; ///< empty for no second button
};

/// One panel at a time: while one is open, further questions are dropped. Answers arrive later, on the editor's thread,
/// and not at all if the frame is closed first. The frame outlives this object.
class editor_dialogs
{
public:
    /// language: that of all texts the panels show.
    editor_dialogs(VSTGUI::CFrame& frame, language_id language);

    /// The text of a localised literal in the user's language.
    std::string translate(const std::string& literal) const;

    /// Calls on_yes if the user agrees.
    void ask(const editor_question& question, std::function<void()> on_yes) const;

    /// Asks for one line of text that begins as `offered`; calls on_text if the user confirms.
    void ask_for_text(const editor_question& question, const std::string& offered,
                      std::function<void(const std::string& text)> on_text) const;

    /// Shows a message: the lead, a localised literal, and the reason of the failure after it.
    void report(const std::string& title, const std::string& lead, const failure& why) const;
    /// Shows a message; both texts are localised literals or plain text.
    void show(const std::string& title, const std::string& message) const;

    /// Runs the toolkit's loop until the question is answered. False if the frame is closed first.
    bool ask_and_wait(const editor_question& question) const;

    VSTGUI::CFrame& get_frame() const { return frame; }
    language_id get_language() const { return language; }

private:
    VSTGUI::CFrame& frame;
    const language_id language;
};

} // namespace ov1

// Questions and alerts in a panel over the dimmed window.
#pragma once

#include "vstgui/vstgui.h"

#include <functional>
#include <optional>
#include <string>

namespace ov1
{

/// Texts are UTF-8 in the user's language.
struct modal_question
{
    std::string title;
    std::string message; ///< is broken into lines; may contain line feeds
    std::string confirm; ///< the first button
    std::string cancel;  ///< the second button; empty for none

    /// Where set, the panel asks for a name, and this is the initial text. A name of blanks only is not accepted.
    std::optional<std::string> name;
};

struct modal_answer
{
    bool confirmed = false; ///< by the first button, or Return
    std::string name;       ///< what was typed, without blanks at either end; empty where no name was asked for
};

/// Shows the panel until a button is pressed, or Return for the first one, or Escape. Then it closes the panel and
/// calls on_answer, once; on_answer may show another panel. If the frame closes first, on_answer is not called.
/// Meanwhile the window beneath gets no mouse events; the frame's other keyboard hooks have to ignore keys while it has
/// a modal view. False, and nothing shown, where the frame refuses.
[[nodiscard]] bool show_modal_panel(VSTGUI::CFrame& frame, const modal_question& question,
                                    std::function<void(const modal_answer&)> on_answer);

} // namespace ov1

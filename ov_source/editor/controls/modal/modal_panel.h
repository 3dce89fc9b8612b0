// Questions and alerts as a panel of the editor's own, over its dimmed window.
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
    std::string message; ///< broken into lines; may hold line feeds
    std::string confirm; ///< the first button
    std::string cancel;  ///< the second button; empty for none

    /// Asks for a name, beginning with this one. A name of blanks is not accepted.
    std::optional<std::string> name;
};

struct modal_answer
{
    bool confirmed = false; ///< by the first button, or Return
    std::string name;       ///< without blanks at either end
};

/// Shows the panel until a button is pressed, or Return for the first one, or Escape, and then calls done, once, when
/// the panel is gone: done may show another. Closing the frame before drops the question and done with it. The window
/// beneath gets no mouse events meanwhile; keyboard hooks of the frame's own have to leave keys alone while it has a
/// modal view. False, and nothing shown, where the frame refuses.
[[nodiscard]] bool show_modal_panel(VSTGUI::CFrame& frame, const modal_question& question,
                                    std::function<void(const modal_answer&)> done);

} // namespace ov1

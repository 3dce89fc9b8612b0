// What the editor remembers from one session to the next, in the user's settings.
#pragma once

#include <string>

namespace ov1
{

/// Defaults are those of the first session.
struct editor_memory
{
    int window_width = 0; ///< in screen pixels; 0: the size that suits the screen
    int window_height = 0;
    double split = 0.5; ///< position of the line between before and after, 0..1 of the width
    bool shows_scopes = false;
    std::string scopes;      ///< which scopes are shown, as scope_choice_text writes it
    std::string last_folder; ///< folder of the last exported LUT; empty for none
};

/// Reads the settings. What is missing or invalid has its default.
editor_memory recall_editor_memory();

/// Writes the settings. A failure is ignored: the editor then opens with what was kept before.
void keep_editor_memory(const editor_memory& memory);

} // namespace ov1

// What the editor remembers from one sitting to the next, in the user's settings.
#pragma once

#include <string>

namespace ov1
{

struct editor_memory
{
    int window_width = 0; ///< screen pixels; 0 for the size that suits the screen
    int window_height = 0;
    double split = 0.5; ///< place of the split's line, 0..1
    bool shows_scopes = false;
    std::string scopes;      ///< the scopes' own text of what they show
    std::string last_folder; ///< where a table was written last; empty for none
};

/// What was kept; for each thing that was not, or makes no sense, the default.
editor_memory recall_editor_memory();

/// Settings that cannot be written are not kept, and nothing is said.
void keep_editor_memory(const editor_memory& memory);

} // namespace ov1

// A list of keys over the dimmed window.
#pragma once

#include "vstgui/vstgui.h"

#include <string>
#include <vector>

namespace ov1
{

/// Texts are UTF-8 in the user's language.
struct help_row
{
    std::string keys;
    std::string text;
};

/// Shows the groups, beneath one another or in a low window side by side, until any key or click, which does nothing
/// else. False, and nothing shown, where the frame refuses.
[[nodiscard]] bool show_help_overlay(VSTGUI::CFrame& frame, const std::string& title,
                                     const std::vector<std::vector<help_row>>& groups);

} // namespace ov1

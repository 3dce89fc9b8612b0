// A list of keys over the dimmed window.
#pragma once

#include "vstgui/vstgui.h"

#include <string>
#include <vector>

namespace ov1
{

/// One line of a group. Texts are UTF-8 in the user's language.
struct help_row
{
    std::string keys;
    std::string text;
};

/// Shows the groups one below the other, or side by side in a low window. Any key or click closes the overlay and has
/// no other effect. False, and nothing shown, where the frame refuses.
[[nodiscard]] bool show_help_overlay(VSTGUI::CFrame& frame, const std::string& title,
                                     const std::vector<std::vector<help_row>>& groups);

} // namespace ov1

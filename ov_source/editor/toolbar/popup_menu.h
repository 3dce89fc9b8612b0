// A menu that opens within the editor's frame.
#pragma once

#include "vstgui/lib/vstguifwd.h"

#include <functional>
#include <string>
#include <vector>

namespace ov1
{

/// One row of the menu, in the user's language.
struct popup_item
{
    std::string text;
    bool is_checked = false;
    bool begins_group = false; ///< a separator is drawn above it
};

/// Opens just beneath a view. on_choice is called with the item's index, and not at all if the user chooses none. Does
/// nothing in a frame without a window.
void show_popup(VSTGUI::CFrame& frame, const VSTGUI::CView& view, const std::vector<popup_item>& items,
                std::function<void(std::size_t item)> on_choice);

} // namespace ov1

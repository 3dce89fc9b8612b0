// A menu that opens within the editor's frame.
#pragma once

#include "vstgui/lib/vstguifwd.h"

#include <functional>
#include <string>
#include <vector>

namespace ov1
{

struct popup_item
{
    std::string text;
    bool is_checked = false;
    bool begins_group = false; ///< a line above it sets it apart
};

/// Opens just beneath a view. chosen is called with the item's place in the list;
/// not at all when the user chooses none.
void show_popup(VSTGUI::CFrame& frame, const VSTGUI::CView& view, const std::vector<popup_item>& items,
                std::function<void(std::size_t item)> chosen);

} // namespace ov1

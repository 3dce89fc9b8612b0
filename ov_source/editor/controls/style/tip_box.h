// The small dark box behind hints, read-outs and the help.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "vstgui/vstgui.h"

#include <string>
#include <vector>

namespace ov1
{

/// Fills the rectangle, in the context's points, with rounded corners and a thin frame.
void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place);

/// A box with lines of UTF-8, which takes no mouse events.
class tip_view : public VSTGUI::CView
{
public:
    /// padding is the distance from the box's edge to the text, horizontally and vertically. The view is as
    /// large as lines and padding need, at 0, 0.
    tip_view(std::vector<std::string> lines, const style::font_pointer& font, const VSTGUI::CPoint& padding,
             VSTGUI::CHoriTxtAlign alignment);

    void draw(VSTGUI::CDrawContext* context) override;

private:
    const std::vector<std::string> lines;
    const VSTGUI::CPoint padding;
    const VSTGUI::CHoriTxtAlign alignment;
    const style::font_pointer font;
};

} // namespace ov1

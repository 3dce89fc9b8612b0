// The small dark box that the editor's hints are written on.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Fills the rectangle, in the context's points, with rounded corners and a thin frame.
void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place);

/// The frame's inside in its own points, whatever its zoom.
VSTGUI::CRect area_of(const VSTGUI::CFrame& frame);

} // namespace ov1

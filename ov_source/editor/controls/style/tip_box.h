// The small dark box behind hints, read-outs and the help.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Fills the rectangle, in the context's points, with rounded corners and a thin frame.
void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place);

/// The frame's area in its own points, from 0, 0: the same at every zoom.
VSTGUI::CRect area_of(const VSTGUI::CFrame& frame);

} // namespace ov1

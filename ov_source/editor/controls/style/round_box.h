// The box with rounded corners and a thin frame behind buttons, hints and questions.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Fills the rectangle, including the frame of one point. In the context's points.
void draw_round_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place, VSTGUI::CCoord corner_radius,
                    const VSTGUI::CColor& fill, const VSTGUI::CColor& frame);

} // namespace ov1

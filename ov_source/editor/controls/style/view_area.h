// Areas and places of views.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// The frame's area in its own points, from 0, 0: the same at every zoom.
VSTGUI::CRect area_of(const VSTGUI::CFrame& frame);

/// Moves a view, and the area in which it takes the mouse with it.
void place_view(VSTGUI::CView& view, const VSTGUI::CRect& place);

/// For CViewContainer::drawBackgroundRect, whose context counts from the container's corner: fills all of it.
void fill_background(VSTGUI::CDrawContext& context, const VSTGUI::CView& container, const VSTGUI::CColor& colour);

} // namespace ov1

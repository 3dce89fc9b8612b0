// The controls of the panel, created and placed as its table says.
#pragma once

#include "editor/controls/widgets/cov_arrow_arc_slider.h"
#include "editor/controls/widgets/cov_button.h"
#include "editor/controls/widgets/cov_callout_slider.h"
#include "editor/controls/widgets/cov_color_wheel_xy_pad.h"
#include "editor/panel/panel_table.h"
#include "shared/language_id.h"
#include "shared/rect.h"

#include <array>
#include <vector>

namespace ov1
{

/// Owned by the container that they were added to.
struct panel_controls
{
    std::array<COVColorWheelXYPad*, panel_count> pads{}; ///< by panel_slot
    std::vector<VSTGUI::CControl*> others;               ///< arcs and sliders, in the order of creation
    COVButton* inspire = nullptr;
};

/// A rectangle of the layout, for the toolkit.
VSTGUI::CRect to_crect(const rect& r);

/// Creates all controls and labels in a container of panel_width x panel_height. The listener, which outlives them, is
/// called for every control; tooltips are in this language.
panel_controls add_panel_controls(VSTGUI::CViewContainer& container, VSTGUI::IControlListener& listener,
                                  language_id language);

/// The background of the panel, panel_width x panel_height, rendered once.
VSTGUI::SharedPointer<VSTGUI::CBitmap> draw_panel_background(VSTGUI::CFrame* frame);

/// The arc whose spread a smoothness slider sets; null for other controls.
COVArrowArcSlider* find_spread_arc(const VSTGUI::CControl& control);
/// Sets the spread for a smoothness slider's normalised value: 0 at 0, full_spread_degrees at 1.
void spread_arc(COVArrowArcSlider& arc, float normalized);

} // namespace ov1

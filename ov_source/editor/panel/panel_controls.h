// The controls of the panel, made and laid out from its table.
#pragma once

#include "editor/controls/widgets/cov_arrow_arc_slider.h"
#include "editor/controls/widgets/cov_button.h"
#include "editor/controls/widgets/cov_callout_slider.h"
#include "editor/controls/widgets/cov_color_wheel_xy_pad.h"
#include "editor/panel/panel_table.h"
#include "shared/language_id.h"

#include <array>
#include <vector>

namespace ov1
{

/// All owned by the container that they were added to.
struct panel_controls
{
    std::array<COVColorWheelXYPad*, panel_count> pads{}; ///< by panel_slot
    std::vector<VSTGUI::CControl*> others;               ///< arcs and sliders in the order of their making
    COVButton* inspire = nullptr;
};

/// Fills the container, which is panel_width x panel_height. The listener hears of every control.
panel_controls add_panel_controls(VSTGUI::CViewContainer& container, VSTGUI::IControlListener& listener,
                                  language_id language);

/// What lies beneath them, panel_width x panel_height, rendered once for a frame.
VSTGUI::SharedPointer<VSTGUI::CBitmap> draw_panel_background(VSTGUI::CFrame* frame);

/// The arc whose arrows a smoothness slider spreads; null for other controls.
COVArrowArcSlider* find_spread_arc(const VSTGUI::CControl& control);
/// Sets the spread that belongs to a smoothness slider's normalised value.
void spread_arc(COVArrowArcSlider& arc, float normalized);

} // namespace ov1

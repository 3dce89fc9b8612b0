// The panel's controls in the order of the keyboard, and what can be done with their values apart from dragging.
#pragma once

#include "editor/panel/panel_controls.h"
#include "framework/icomponent_v1.h"

#include <string>
#include <vector>

namespace ov1
{

/// One control with its parameters: a pad's angle and radius, or the only one of an arc or a slider.
struct panel_stop
{
    VSTGUI::CControl* control = nullptr; ///< not owned
    panel_slot slot = panel_slot::master;
    std::vector<uid> parameters;

    bool is_pad() const { return parameters.size() == 2; }
};

/// Panel by panel as the eye goes: master, shadows, mids, highlights, greenery, sky, skin, film contrast; of each the
/// pad, its arcs and its sliders.
std::vector<panel_stop> order_panel_stops(const panel_controls& controls);

/// The values as they are read and as they are typed; empty where the component has not all of the parameters.
std::string read_out(icomponent_v1& component, const panel_stop& stop);
std::string entry_text(icomponent_v1& component, const panel_stop& stop);

// The changes are made as the editor's own, like those of a drag. Brackets for undo are the caller's.

/// Moves a pad's handle by steps of 1 % of its radius to the right and down, any other control by 1 % of its reach,
/// more to the right and up; finely by a tenth.
void nudge(icomponent_v1& component, const panel_stop& stop, const VSTGUI::CPoint& direction, bool finely);

bool is_at_default(icomponent_v1& component, const panel_stop& stop);
void reset(icomponent_v1& component, const panel_stop& stop);

/// Reads what was typed for a stop. False, with a localised literal that says why, for anything but the right count of
/// numbers within the parameters' bounds.
[[nodiscard]] bool read_entry(icomponent_v1& component, const panel_stop& stop, const std::string& typed,
                              std::vector<float>& values, std::string& why);
void set_values(icomponent_v1& component, const panel_stop& stop, const std::vector<float>& values);

} // namespace ov1

// The panel's controls in the order of keyboard focus, each with its parameters, and changes of their values other than
// dragging.
#pragma once

#include "editor/panel/panel_controls.h"
#include "framework/icomponent_v1.h"
#include "shared/result.h"

#include <array>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

class cparameter_continuous_v1;

/// One control and what it shows. Of pad, arc and slider the one that the control is; none is owned.
struct panel_stop
{
    panel_slot slot = panel_slot::master;
    VSTGUI::CControl* control = nullptr;
    COVColorWheelXYPad* pad = nullptr;
    COVArrowArcSlider* arc = nullptr;
    COVCalloutSlider* slider = nullptr;
    /// Of a pad angle and radius, otherwise one. Looked up once; null where the component has no such parameter.
    std::array<std::weak_ptr<cparameter_continuous_v1>, 2> parameters = {};
};

/// Panel by panel, from top to bottom and left to right: master, shadows, mids, highlights, greenery, sky, skin, film
/// contrast; in each panel the pad, its arcs and its sliders. The controls outlive the stops.
std::vector<panel_stop> order_panel_stops(icomponent_v1& component, const panel_controls& controls);

/// The stop of a control; null where the control is none of them.
const panel_stop* find_stop(std::span<const panel_stop> stops, const VSTGUI::CView* control);

/// The pad of a panel.
const COVColorWheelXYPad& pad_of(std::span<const panel_stop> stops, panel_slot slot);

/// The values as they are shown beside the control; empty once the component is gone.
std::string value_text_of(const panel_stop& stop);
/// The values as they are typed; empty once the component is gone.
std::string entry_text_of(const panel_stop& stop);

// The functions below change values as a drag does, with edit false. Undo brackets are the caller's task.

/// Moves a pad's handle right and down by steps of 1 % of the wheel's radius. Any other control moves by 1 % of half
/// its range, to greater values for right and up. Finely: by a tenth of that.
void nudge(const panel_stop& stop, const VSTGUI::CPoint& direction, bool finely);

bool is_at_default(const panel_stop& stop);
void reset(const panel_stop& stop);

/// Reads typed text: as many numbers as the stop has parameters, each within its parameter's bounds. The failure's
/// reason is a localised literal.
result<std::vector<float>> read_entry(const panel_stop& stop, const std::string& typed);
void set_values(const panel_stop& stop, const std::vector<float>& values);

} // namespace ov1

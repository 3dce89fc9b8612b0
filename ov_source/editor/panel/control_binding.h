// The data flow between the panel's controls and the component's parameters, in both directions.
#pragma once

#include "editor/panel/panel_stops.h"

#include <span>

namespace ov1
{

class iparameter_v1;

// For the editor's thread. A control's tag is its parameter's uid, a pad's own tag the uid of its angle.

/// Sets what a control shows, with edit false: a pad's two plain values, another control's normalised one. False for a
/// control without a parameter.
bool write_parameters(std::span<const panel_stop> stops, VSTGUI::CControl& control);

/// Moves the control of a parameter, unless the user is holding it. False where no control is moved.
bool show_parameter(std::span<const panel_stop> stops, iparameter_v1& parameter);

/// Whether it is a pad with a parameter to write.
bool is_bound_pad(std::span<const panel_stop> stops, const VSTGUI::CControl& control);

} // namespace ov1

// Which parameters a control of the panel writes, and which controls show a parameter.
#pragma once

#include "editor/panel/panel_controls.h"
#include "framework/icomponent_v1.h"

#include <memory>

namespace ov1
{

class cparameter_continuous_v1;

/// A control's tag is its parameter's uid, a pad's own that of its angle. Belongs to the editor's thread; the controls
/// outlive it.
class control_binding
{
public:
    control_binding(std::weak_ptr<icomponent_v1> component, const panel_controls& controls);

    /// Sets what a control stands for: a pad's two plain values, another's normalised one. False for a control that
    /// stands for nothing.
    bool write(VSTGUI::CControl& control) const;
    /// Moves the first control of a parameter that is not held by the mouse. False where there is none.
    bool show(iparameter_v1& parameter) const;
    /// Whether it is a pad, with a parameter to write.
    bool is_bound_pad(const VSTGUI::CControl& control) const;

private:
    COVColorWheelXYPad* as_pad(const VSTGUI::CControl& control) const;
    void write_pad(icomponent_v1& component, const COVColorWheelXYPad& pad) const;
    bool show_in_list(cparameter_continuous_v1& parameter) const;
    bool show_in_pads(cparameter_continuous_v1& parameter) const;

    const std::weak_ptr<icomponent_v1> component;
    const panel_controls& controls;
};

} // namespace ov1

// The component's editor, free of any toolkit.
#pragma once

#include "shared/iobject.h"
#include "shared/rect.h"

#include <memory>

namespace ov1
{

class iparameter_change_listener_v1;
class iparameter_v1;
class window;

/// Mirrors the parameters in controls and owns none of them. Belongs to one thread, the editor's, except is_open,
/// is_editing and set_control_from_parameter: a parameter calls the last from the thread that set it.
class iview_v1 : public iobject
{
public:
    /// The size that suits the screen.
    virtual rect get_rect() const = 0;

    /// Shows the view in the window, which it keeps. False when it is open already or the window cannot be shown.
    [[nodiscard]] virtual bool open(std::shared_ptr<window> window) = 0;
    virtual void close() = 0;
    /// Whether there is a window and it is visible.
    virtual bool is_open() = 0;
    /// Whether the user holds a control: from the press to the release.
    virtual bool is_editing() = 0;
    /// Lets the window work off its pending messages.
    virtual bool idle() = 0;
    /// Builds the controls.
    virtual void init_view() = 0;

    /// Shows a parameter's value in every control that stands for it; nothing unless open.
    virtual void set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit) = 0;
    /// All parameters in registration order.
    virtual void update_controls(bool edit) = 0;

    /// Not owned: unregister before the listener dies, or close the view.
    virtual void register_parameter_change_listener(iparameter_change_listener_v1* listener) = 0;
    virtual void unregister_parameter_change_listener(iparameter_change_listener_v1* listener) = 0;
};

} // namespace ov1

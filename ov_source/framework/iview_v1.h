// The component's editor, without types of a toolkit.
#pragma once

#include "shared/iobject.h"
#include "shared/rect.h"

#include <memory>

namespace ov1
{

class iparameter_change_listener_v1;
class iparameter_v1;
class window;

/// Shows the parameters in controls and owns none of them. Used on the editor's thread only, except is_open, is_editing
/// and set_control_from_parameter, which a parameter calls on the thread that set it.
class iview_v1 : public iobject
{
public:
    /// The preferred size for the screen.
    virtual rect get_rect() const = 0;

    /// Shows the view in the window and keeps it. Returns false if the view is already open or the window cannot be
    /// shown.
    [[nodiscard]] virtual bool open(std::shared_ptr<window> window) = 0;
    /// Closes the window and forgets the listeners and changes that were not shown yet.
    virtual void close() = 0;
    /// Whether the view has a visible window.
    virtual bool is_open() = 0;
    /// Whether the user is dragging a control: from press to release.
    virtual bool is_editing() = 0;
    /// Processes the pending events of the window.
    /// Returns true.
    virtual bool idle() = 0;
    /// Creates the controls.
    virtual void init_view() = 0;

    /// Shows the parameter's value in its controls. Does nothing unless open.
    virtual void set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit) = 0;
    /// The same for all parameters in registration order.
    virtual void update_controls(bool edit) = 0;

    /// The listener is not owned: unregister it or close the view before it is destroyed.
    virtual void register_parameter_change_listener(iparameter_change_listener_v1* listener) = 0;
    virtual void unregister_parameter_change_listener(iparameter_change_listener_v1* listener) = 0;
};

} // namespace ov1

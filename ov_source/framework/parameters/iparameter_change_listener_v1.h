// Listens to the parameters that a view shows.
#pragma once

#include <memory>

namespace ov1
{

class iparameter_v1;

/// Registered with a view, which does not own it. Called on the editor's thread.
class iparameter_change_listener_v1
{
public:
    virtual ~iparameter_change_listener_v1() = default;

    /// A shown parameter has a new value; edit as given to iparameter_v1::set_param_value.
    virtual void parameter_changed(std::shared_ptr<iparameter_v1> parameter, bool edit) = 0;
};

} // namespace ov1

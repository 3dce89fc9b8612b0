// Creates the effect that a program is linked with.
#pragma once

#include <memory>

namespace ov1
{

class icomponent_v1;

/// A new component, not yet initialized. Defined by the effect.
std::shared_ptr<icomponent_v1> create_ccomponent();

} // namespace ov1

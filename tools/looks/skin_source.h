// The C++ source that carries the skin tables and masks into the engine.
#pragma once

#include "tools/looks/look_data.h"

#include <string>

namespace ov1
{

/// The definitions of what effect/skin_data.h declares, as text in plain ASCII. Every number reads back to the same
/// float.
std::string skin_source(const look_data& data);

} // namespace ov1

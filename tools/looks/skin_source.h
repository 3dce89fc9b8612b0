// The C++ source with which the skin tables and masks are compiled into the engine.
#pragma once

#include "tools/looks/look_data.h"

#include <string>

namespace ov1
{

/// The definitions for the declarations of effect/skin_data.h, in ASCII. Every number is read back as the same float.
std::string skin_source(const look_data& data);

} // namespace ov1

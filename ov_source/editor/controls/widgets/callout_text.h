// A slider's value as the text beside its handle.
#pragma once

#include <string>
#include <string_view>

namespace ov1
{

/// The value with precision digits after the point, and, where there is a unit, a blank and the unit. Always with a
/// decimal point, whatever the locale; a zero has no sign. The precision is limited to 0..9.
std::string callout_text(float value, int precision, std::string_view unit);

} // namespace ov1

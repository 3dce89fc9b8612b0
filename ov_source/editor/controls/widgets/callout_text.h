// A slider's value as the text beside its handle.
#pragma once

#include <string>
#include <string_view>

namespace ov1
{

/// The value with precision digits after the point, followed by a blank and the unit, unless that is empty. The decimal
/// separator is a point in every locale; zero has no sign. The precision is limited to 0..9.
std::string callout_text(float value, int precision, std::string_view unit);

} // namespace ov1

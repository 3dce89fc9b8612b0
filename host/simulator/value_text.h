// The texts of values and times in documents, the same in every locale.
//
//   float 12.5      int 3      bool 1      color 1 0.5 0 1 (red, green, blue, alpha)
//   1001 30000 1 0 (a time: value, timescale, flags, epoch)
#pragma once

#include "host/simulator/parameter_store.h"

#include <optional>
#include <string>
#include <string_view>

namespace ov1
{

/// Reads back as the same value, to the bit. Empty for an archive, which has no text.
std::string text_of_value(const store_value& value);
/// Nothing for any text that text_of_value does not write, numbers that are not finite included.
std::optional<store_value> value_of_text(std::string_view text);

/// All four fields, as they are.
std::string text_of_time(CMTime time);
/// Nothing for other texts and for a timescale that is not positive.
std::optional<CMTime> time_of_text(std::string_view text);

} // namespace ov1

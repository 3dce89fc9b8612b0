// Values of the store as texts of a document, the same in every locale.
//
//   float 12.5      int 3      bool 1      color 1 0.5 0 1      (red, green, blue, alpha)
#pragma once

#include "host/simulator/parameter_store.h"

#include <string>
#include <string_view>

namespace ov1
{

/// Reads back as the same value, to the bit. Of an archive, which has no text, it is empty.
std::string text_of_value(const store_value& value);
/// False for anything else than what text_of_value writes.
[[nodiscard]] bool value_of_text(std::string_view text, store_value& value);

/// "value timescale flags epoch"
std::string text_of_time(CMTime time);
[[nodiscard]] bool time_of_text(std::string_view text, CMTime& time);

} // namespace ov1

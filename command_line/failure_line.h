// The line that reports a failure.
#pragma once

#include "shared/failure.h"

#include <string>
#include <string_view>

namespace ov1
{

/// "subject": reason (hint), without a line feed. Subject and hint are left out where they are empty; control
/// characters and bytes that are not UTF-8 appear as \xNN.
/// The kind is not part of the text: it decides the exit code only.
std::string failure_line(const failure& why);

/// A text in double quotes, escaped in the same way.
std::string in_quotes(std::string_view text);

} // namespace ov1

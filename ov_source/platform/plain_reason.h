// System errors in words for users.
#pragma once

#include <string>

namespace ov1
{

/// A system error number as a short reason in lower case, without a full stop: "permission denied", "the disk is full".
/// ENOENT is reported as a missing folder, its meaning when a file is created; code that reads files reports "no such
/// file" itself.
std::string plain_reason(int error_number);

} // namespace ov1

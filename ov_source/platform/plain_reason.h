// What went wrong with a file, in a user's words.
#pragma once

#include <string>

namespace ov1
{

/// A system error number as a short reason without a capital or a full stop: "permission denied", "the disk is full".
/// ENOENT is a missing folder, which it is wherever a file was to be made; readers say "no such file" themselves.
std::string plain_reason(int error_number);

} // namespace ov1

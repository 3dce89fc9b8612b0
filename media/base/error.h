// Why a picture could not be read or written.
#pragma once

#include <string>

namespace ov1::media
{

enum class error_kind
{
    unreadable,   ///< missing, not permitted, empty or damaged
    unsupported,  ///< sound, as far as one can tell, but of a kind that this room does not read or write
    cannot_write, ///< the picture could not be encoded
};

/// One failure. The subject (a path, as the user gave it) is the caller's; reason and hint go on its line, in lower
/// case and without a full stop. The hint may be empty.
struct error
{
    error_kind kind = error_kind::unreadable;
    std::string reason;
    std::string hint;
};

} // namespace ov1::media

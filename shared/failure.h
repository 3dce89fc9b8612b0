// One thing that failed: what kind of failure it is, of what, why, and what helps.
#pragma once

#include <string>

namespace ov1
{

/// What a caller can act on. The program's exit code follows from it (command_line/exit_code.h).
enum class failure_kind
{
    usage,         ///< the request itself makes no sense
    unreadable,    ///< an input is missing, not permitted, empty or damaged
    unsupported,   ///< valid, but of a kind that is not read or written here
    invalid_grade, ///< a preset, state or parameter that does not exist or is malformed
    cannot_write,  ///< an output exists or cannot be written
};

/// Texts in lower case and without a full stop, in English. Only the reason is never empty. A room that does not know
/// the subject as the user wrote it leaves it to its caller.
struct failure
{
    failure_kind kind = failure_kind::unreadable;
    std::string subject = {}; ///< a file, parameter or option, as the user wrote it
    std::string reason = {};
    std::string hint = {}; ///< what to do about it

    bool operator==(const failure&) const = default;
};

} // namespace ov1

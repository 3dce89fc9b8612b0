// A failure: its kind, its subject, the reason, and a hint.
#pragma once

#include <string>

namespace ov1
{

/// The kinds that callers distinguish. The exit code of the program follows from it (command_line/exit_code.h).
enum class failure_kind
{
    usage,         ///< the request itself is wrong
    unreadable,    ///< an input is missing, not permitted, empty or damaged
    unsupported,   ///< valid, but not supported
    invalid_grade, ///< a preset, state or parameter that does not exist or is malformed
    cannot_write,  ///< an output exists or cannot be written
};

/// Texts are English, in lower case, without a full stop. The reason is never empty. Code that does not know the
/// subject as the user wrote it leaves it empty; its caller adds it with about().
struct failure
{
    /// Decides the exit code.
    failure_kind kind = failure_kind::unreadable;
    std::string subject = {}; ///< a file, parameter or option, as the user wrote it
    /// Why it failed, for an error line.
    std::string reason = {};
    std::string hint = {}; ///< what the user can do

    bool operator==(const failure&) const = default;
};

} // namespace ov1

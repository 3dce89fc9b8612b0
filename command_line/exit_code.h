// The exit codes of the programs, for scripts. The codes of failures are decided here alone.
#pragma once

#include "shared/failure.h"

#include <span>

namespace ov1
{

/// Scripts depend on these numbers: none may change its meaning.
enum class exit_code : int
{
    done = 0,
    some_failed = 1,   ///< some of several inputs failed, or an output was written from a damaged input
    usage = 2,         ///< the command line makes no sense
    unreadable = 3,    ///< an input is missing or cannot be read
    unsupported = 4,   ///< a format that is not read or written
    invalid_grade = 5, ///< a preset or state that is malformed
    cannot_write = 6,  ///< an output exists or cannot be written
    interrupted = 130, ///< as shells report an interrupt
};

/// The code of a run that ends with this failure.
exit_code exit_code_of(const failure& why);

/// done where nothing failed, else the code of the first failure.
exit_code exit_code_of(std::span<const failure> failures);

/// The code of a run over several inputs: done if all were, their common code if all failed alike, else some_failed.
exit_code common_exit_code(std::span<const exit_code> outcomes);

} // namespace ov1

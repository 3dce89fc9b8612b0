// How the program ends, for scripts.
#pragma once

#include <span>

namespace ov1
{

enum class exit_code : int
{
    done = 0,
    some_failed = 1,   ///< of several inputs
    usage = 2,         ///< the command line makes no sense
    unreadable = 3,    ///< an input is missing or cannot be read
    unsupported = 4,   ///< a format that is not read or written
    invalid_grade = 5, ///< a preset or state that is none
    cannot_write = 6,  ///< an output exists or cannot be written
    interrupted = 130, ///< as shells report an interrupt
};

/// The end of a run over several inputs: done if all were, their common code if all failed alike, else some_failed.
exit_code common_exit_code(std::span<const exit_code> outcomes);

} // namespace ov1

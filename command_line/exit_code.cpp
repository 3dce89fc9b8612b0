#include "command_line/exit_code.h"

#include <algorithm>

namespace ov1
{

exit_code exit_code_of(const failure& why)
{
    // Without a default, so that the compiler reports a kind that has no code.
    switch (why.kind)
    {
    case failure_kind::usage:
        return exit_code::usage;
    case failure_kind::unreadable:
        return exit_code::unreadable;
    case failure_kind::unsupported:
        return exit_code::unsupported;
    case failure_kind::invalid_grade:
        return exit_code::invalid_grade;
    case failure_kind::cannot_write:
        break;
    }
    return exit_code::cannot_write;
}

exit_code exit_code_of(std::span<const failure> failures)
{
    return failures.empty() ? exit_code::done : exit_code_of(failures.front());
}

exit_code common_exit_code(std::span<const exit_code> outcomes)
{
    if (outcomes.empty())
        return exit_code::done;
    const bool alike = std::all_of(outcomes.begin(), outcomes.end(), [&](exit_code c) { return c == outcomes[0]; });
    return alike ? outcomes[0] : exit_code::some_failed;
}

} // namespace ov1

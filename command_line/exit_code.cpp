#include "command_line/exit_code.h"

#include <algorithm>

namespace ov1
{

exit_code common_exit_code(std::span<const exit_code> outcomes)
{
    if (outcomes.empty())
        return exit_code::done;
    const bool alike = std::all_of(outcomes.begin(), outcomes.end(), [&](exit_code c) { return c == outcomes[0]; });
    return alike ? outcomes[0] : exit_code::some_failed;
}

} // namespace ov1

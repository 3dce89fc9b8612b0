// The instruction sets that the vector loops can use on this processor, and the choice of one for tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// One set that the loops were compiled for.
struct instruction_set
{
    std::string name; ///< such as "AVX2"
    std::int64_t bit; ///< Highway's number
};

/// Those that the loops were compiled for and that this processor has, the best first. The loops use the first.
std::vector<instruction_set> present_instruction_sets();

/// The loops use this one while the object lives. For tests and benchmarks: one object at a time, and neither builds
/// nor renders on other threads while it is made or destroyed.
class forced_instruction_set
{
public:
    /// The set must be one of present_instruction_sets().
    explicit forced_instruction_set(const instruction_set& set);
    ~forced_instruction_set();
    forced_instruction_set(const forced_instruction_set&) = delete;
    forced_instruction_set& operator=(const forced_instruction_set&) = delete;
};

} // namespace ov1

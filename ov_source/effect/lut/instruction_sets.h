// Which instruction sets the vector loops can run on here, and which one they do run on.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

struct instruction_set
{
    std::string name; ///< "AVX2", say
    std::int64_t bit; ///< as Highway numbers them
};

/// What the loops were compiled for and this processor has, the best first.
std::vector<instruction_set> present_instruction_sets();

/// The loops run on this one while the object lives. For tests and benchmarks, one at a time, while nothing renders.
class forced_instruction_set
{
public:
    explicit forced_instruction_set(const instruction_set& set);
    ~forced_instruction_set();
    forced_instruction_set(const forced_instruction_set&) = delete;
    forced_instruction_set& operator=(const forced_instruction_set&) = delete;
};

} // namespace ov1

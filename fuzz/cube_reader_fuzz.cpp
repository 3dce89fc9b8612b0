// Any text is read as a table that can be looked up in, or fails with a reason.
#include "effect/lut/cube_reader.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto table = ov1::cube_table::read({reinterpret_cast<const char*>(data), size});
    if (table)
        // Inside and far outside the domain: an index out of range is seen by the sanitizer.
        for (const float value : {-1e30f, 0.0f, 0.3f, 1.0f, 1e30f})
            table->lookup({1, value, 1 - value, value * 0.5f});
    else if (table.error().reason.empty())
        std::abort();
    return 0;
}

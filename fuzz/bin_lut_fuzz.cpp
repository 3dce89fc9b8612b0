// Any bytes as a look table: a lookup reads nothing outside the table, and a valid table is written back unchanged.
#include "effect/lut/bin_lut.h"
#include "effect/lut/lut_argb.h"

#include <cstdint>
#include <cstdlib>

namespace
{

using namespace ov1;

/// A table is read back unchanged; anything else gives the identity.
void read(const std::vector<unsigned char>& bytes)
{
    const auto table = lut_argb<17>::from_vec(bytes);
    const bool is_table = bytes.size() == bin_lut_size(17) && bytes[0] == 17 && bytes[1] == 0;
    if (is_table && write_bin_lut(table.get_entries(), 17) != bytes)
        std::abort();
    if (!is_table && table != lut_argb<17>())
        std::abort();
    // The result has to be used, or the compiler leaves the lookup out.
    volatile float sink = table.lookup({1, 0.37f, 2.0f, -1.0f}).g;
    (void)sink;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    read({data, data + size});
    // The same bytes repeated up to the size of a table.
    std::vector<unsigned char> whole(bin_lut_size(17));
    for (std::size_t i = 0; i < whole.size() && size > 0; ++i)
        whole[i] = data[i % size];
    read(whole);
    // With a valid header: these bytes must be accepted, whatever the entries are.
    whole[0] = 17;
    whole[1] = 0;
    read(whole);
    return 0;
}

#include "effect/render_table.h"

#include <utility>

namespace ov1
{

render_table::render_table(lut_argb<lut_edge> from)
    : table(std::move(from))
{
}

void render_table::render_row(const argb_float* in, argb_float* out, std::size_t count) const
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = table.lookup(in[i]);
}

} // namespace ov1

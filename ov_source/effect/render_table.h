// A published table in the form that pixels are rendered through.
#pragma once

#include "effect/lut_argb.h"

#include <cstddef>

namespace ov1
{

/// Made once per build and never changed, so any number of threads may render through it. Its rows are where a faster
/// kernel goes: whatever renders them gives the bits of lut_argb::lookup.
class render_table
{
public:
    explicit render_table(lut_argb<lut_edge> table);

    const lut_argb<lut_edge>& get_table() const { return table; }

    /// out[i] = lookup(in[i]) for count pixels. in and out are the same row or do not overlap; the alpha of in is
    /// ignored, that of out is the table's.
    void render_row(const argb_float* in, argb_float* out, std::size_t count) const;

private:
    lut_argb<lut_edge> table;
};

} // namespace ov1

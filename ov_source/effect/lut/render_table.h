// A published table in the form that pixels are rendered through.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/row_kernel.h"

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace ov1
{

/// Made once per build and never changed, so any number of threads may render through it. Entries are finite.
class render_table
{
public:
    /// How the red axis is kept: the whole line of each grid point and what the next one has more (629 KB), or the
    /// lines alone (333 KB), which cost a subtraction more but fit a small second cache.
    enum class layout
    {
        with_deltas,
        lines_only,
    };

    /// In the layout that this machine's caches favour.
    explicit render_table(lut_argb<lut_edge> table);
    render_table(lut_argb<lut_edge> table, layout form);

    const lut_argb<lut_edge>& get_table() const { return table; }

    /// out[i] = lookup(in[i]) for count pixels, to the bit. in and out are the same row or do not overlap; the alpha of
    /// in is ignored, that of out is the table's.
    void render_row(const argb_float* in, argb_float* out, std::size_t count) const;

    /// The same for halfs, four a pixel in the order R, G, B, A; the results are rounded to the nearest half.
    void render_row_half(const half_bits* in, half_bits* out, std::size_t count) const;

    /// The same for a row of each channel, without alpha. Every plane out is the same channel's plane in or overlaps
    /// none.
    void render_row_planes(const rgb_planes<const float>& in, const rgb_planes<float>& out, std::size_t count) const;

private:
    struct free_lines
    {
        void operator()(float* lines) const { std::free(lines); }
    };

    render_lines get_lines() const { return {form == layout::with_deltas, lines.get(), &table}; }

    lut_argb<lut_edge> table;
    layout form;
    std::unique_ptr<float[], free_lines> lines;
};

} // namespace ov1

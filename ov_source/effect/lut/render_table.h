// A table in the form that pixels are rendered through (row_kernel.h).
#pragma once

#include "effect/lut/lut_argb.h"

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace ov1
{

/// A table rearranged for the loops over rows: the eight corners around a colour are two lines of the cache.
/// Made once per build and never changed, so any number of threads may render through it. Entries are finite.
///
/// Grid point (r, g, b) has a line of 64 bytes, the one at index (r * 17 + g) * 17 + b, that holds the corners (g, b),
/// (g, b+1), (g+1, b) and (g+1, b+1) of its red plane, each an a, r, g, b. Corners beyond the last grid point repeat
/// it: a loop over pixels needs no clamp for the upper corner.
class render_table
{
public:
    /// How the red axis is kept. With deltas (629 KB) every line is followed by the difference to the line of r + 1.
    /// Lines alone (333 KB) cost one subtraction more but fit a small second-level cache; an 18th red plane repeats the
    /// last one.
    enum class layout
    {
        with_deltas,
        lines_only,
    };

    static constexpr std::size_t floats_per_line = 16;
    static constexpr std::size_t bytes_per_line = floats_per_line * sizeof(float);
    /// From the line of one grid point to that of the next along blue.
    static constexpr std::size_t floats_per_point(layout form)
    {
        return form == layout::with_deltas ? 2 * floats_per_line : floats_per_line;
    }

    /// In the layout that is faster with this machine's caches.
    explicit render_table(lut_argb<lut_edge> table);
    render_table(lut_argb<lut_edge> table, layout form);

    /// The entries that the lines were made from.
    const lut_argb<lut_edge>& get_table() const { return table; }
    layout get_layout() const { return form; }
    /// The line of grid point (0, 0, 0), aligned to 64 bytes; the table owns them.
    const float* get_lines() const { return lines.get(); }

private:
    // The lines come from aligned_alloc, so free releases them.
    struct free_lines
    {
        void operator()(float* memory) const { std::free(memory); }
    };

    lut_argb<lut_edge> table;
    layout form;
    std::unique_ptr<float[], free_lines> lines;
};

} // namespace ov1

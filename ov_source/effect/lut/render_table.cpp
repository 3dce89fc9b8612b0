#include "effect/lut/render_table.h"

#include "platform/cache_size.h"

#include <algorithm>
#include <new>
#include <utility>

namespace ov1
{

namespace
{

constexpr std::size_t edge = lut_edge;
constexpr std::size_t small_level_2_cache = 512 * 1024; // in smaller ones lines alone are faster

/// Decided once: the cache does not change while the program runs.
render_table::layout faster_layout()
{
    static const bool is_small = level_2_cache_bytes() < small_level_2_cache;
    return is_small ? render_table::layout::lines_only : render_table::layout::with_deltas;
}

/// Aligned to a line, so that each line is one line of the cache. Throws std::bad_alloc.
float* allocate_lines(std::size_t floats)
{
    void* memory = std::aligned_alloc(render_table::bytes_per_line, floats * sizeof(float));
    if (memory == nullptr)
        throw std::bad_alloc();
    return static_cast<float*>(memory);
}

/// The four corners around the cell (g, b) of one red plane.
struct line
{
    argb_float corners[4];
};
static_assert(sizeof(line) == render_table::bytes_per_line);

/// The line of a grid point; neighbours beyond the last green or blue repeat it.
line line_of(const argb_float* entries, std::size_t r, std::size_t g, std::size_t b)
{
    const auto entry = [&](std::size_t gi, std::size_t bi)
    { return entries[lut_argb<edge>::index(r, std::min(gi, edge - 1), std::min(bi, edge - 1))]; };
    return {{entry(g, b), entry(g, b + 1), entry(g + 1, b), entry(g + 1, b + 1)}};
}

/// The subtraction that a loop over lines alone does for each pixel: the same floats.
line operator-(const line& upper, const line& lower)
{
    line delta;
    for (std::size_t i = 0; i < 4; ++i)
    {
        const argb_float &u = upper.corners[i], &l = lower.corners[i];
        delta.corners[i] = {u.a - l.a, u.r - l.r, u.g - l.g, u.b - l.b};
    }
    return delta;
}

/// Calls point(r, g, b) in the order of the lines. There can be one more red plane than the table has.
template <class function>
void each_point(std::size_t reds, const function& point)
{
    for (std::size_t r = 0; r < reds; ++r)
        for (std::size_t g = 0; g < edge; ++g)
            for (std::size_t b = 0; b < edge; ++b)
                point(r, g, b);
}

} // namespace

render_table::render_table(lut_argb<lut_edge> from)
    : render_table(std::move(from), faster_layout())
{
}

render_table::render_table(lut_argb<lut_edge> from, layout form)
    : table(std::move(from))
    , form(form)
{
    const bool with_deltas = form == layout::with_deltas;
    const std::size_t red_planes = with_deltas ? edge : edge + 1;
    lines.reset(allocate_lines(red_planes * edge * edge * floats_per_point(form)));

    const argb_float* entries = table.get_entries().data();
    auto* to = reinterpret_cast<line*>(lines.get());
    each_point(red_planes,
               [&](std::size_t r, std::size_t g, std::size_t b)
               {
                   const line lower = line_of(entries, std::min(r, edge - 1), g, b);
                   *to++ = lower;
                   if (with_deltas)
                       *to++ = line_of(entries, std::min(r + 1, edge - 1), g, b) - lower;
               });
}

} // namespace ov1

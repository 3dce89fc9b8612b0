// A finished table together with the values that it was built from.
// The effect publishes a new one for each build and hands out shared pointers: a renderer never waits for a build.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut/row_kernel.h"
#include "framework/row_renderer.h"

#include <optional>
#include <utility>

namespace ov1
{

/// Never changed once it is published: whoever holds it renders all pixels of a picture with one state of the effect.
/// render_row gives the bits of lut_argb::lookup; the row's number is ignored.
class published_table : public row_renderer
{
public:
    /// Without settings the table is out of date from the start.
    published_table(lut_argb<lut_edge> table, std::optional<grade_settings> built_from)
        : table(std::move(table))
        , built_from(built_from)
    {
    }

    /// in and out are the same row or do not overlap.
    void render_row(std::size_t, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        row_kernel::render_argb(table, in, out, count);
    }

    /// The same for halfs in the order R, G, B, A.
    void render_row_half(std::size_t, const half_bits* in, half_bits* out, std::size_t count) const override
    {
        row_kernel::render_half(table, in, out, count);
    }

    /// The same for one row of each channel, in place; there is no alpha.
    void render_row_planes(std::size_t, const rgb_planes<float>& row, std::size_t count) const override
    {
        row_kernel::render_planes(table, {row.r, row.g, row.b}, row, count);
    }

    /// For single lookups and for exports.
    const lut_argb<lut_edge>& get_table() const { return table.get_table(); }
    /// Whether a build with these settings would give the same table.
    bool is_built_from(const grade_settings& settings) const { return built_from && built_from->same_bytes(settings); }

private:
    render_table table;
    std::optional<grade_settings> built_from;
};

} // namespace ov1

// A colour table of fixed edge length and its trilinear lookup.
// Red is the outermost axis here and in the .bin and .3dl formats; .cube has red innermost (cube_format.h).
#pragma once

#include "effect/lut/trilinear.h"
#include "shared/argb_float.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace ov1
{

/// The unit of colour points runs from 0 to 65535; this is 1 / 65535 in single precision.
inline constexpr float unit_per_u16 = 1.5259022e-05f;
inline constexpr float u16_max = 65535.0f;

/// Position of a channel value (nominally 0..1) on an axis of edge grid points.
template <std::size_t edge>
constexpr grid_position grid_position_of(float channel)
{
    return grid_position_at(channel * static_cast<float>(edge - 1), edge);
}

/// edge x edge x edge colours. Grid point (r, g, b), each 0..edge-1, stands for the input r / (edge - 1) and so on, and
/// is stored at index (r * edge + g) * edge + b: red outermost, blue innermost. Values are display-referred code
/// values, nominally 0..1; the container never limits them. A plain value without locks.
template <std::size_t edge>
class lut_argb
{
public:
    static constexpr std::size_t edge_length = edge;
    static constexpr std::size_t entry_count = edge * edge * edge;

    /// What a new table holds.
    enum class init_mode : int
    {
        identity = 0,
        black = 1, ///< alpha 1
        white = 2, ///< alpha 1
        none = 3,  ///< all four channels 0
    };

    explicit lut_argb(init_mode mode = init_mode::identity);

    /// Rewrites the whole table as the identity, alpha 1.
    void init();

    /// The entry at a grid point. Throws std::out_of_range if an index is edge or more.
    const argb_float& get_direct(std::size_t r, std::size_t g, std::size_t b) const;

    /// The trilinear interpolation of the eight entries around a colour. Channels outside 0..1 are limited, a NaN
    /// counts as 0, and the alpha of c is ignored. The result is not limited; its alpha is the table's. Any thread.
    argb_float lookup(const argb_float& c) const
    {
        return trilinear(grid_position_of<edge>(c.r), grid_position_of<edge>(c.g), grid_position_of<edge>(c.b),
                         [e = entries.data()](std::size_t r, std::size_t g, std::size_t b) -> const argb_float&
                         { return e[index(r, g, b)]; });
    }

    /// The table with these entries, alpha included, in index order.
    static lut_argb from_std_array(const std::array<argb_float, entry_count>& values);

    /// Decodes the binary table format (bin_lut.h). Bytes of another size or edge length give the identity.
    static lut_argb from_vec(const std::vector<unsigned char>& bytes);

    /// Reads a resource of the product in the binary table format; the identity where it cannot be read.
    static lut_argb from_bin_resource(const std::string& name);

    /// Index of a grid point in get_entries(). Not checked: see get_direct.
    static constexpr std::size_t index(std::size_t r, std::size_t g, std::size_t b)
    {
        return (r * edge + g) * edge + b;
    }

    /// The entries in index order. Their number never changes.
    std::vector<argb_float>& get_entries() { return entries; }
    const std::vector<argb_float>& get_entries() const { return entries; }

    /// Compares floats: -0 equals 0, and a table with a NaN equals none.
    bool operator==(const lut_argb&) const = default;

protected:
    std::vector<argb_float> entries;
};

/// The edge length of every table that the effect builds or loads.
inline constexpr std::size_t lut_edge = 17;

extern template class lut_argb<lut_edge>;

} // namespace ov1

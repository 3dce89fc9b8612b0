// A table of any edge length, for export and presets.
#pragma once

#include "effect/lut/lut_argb.h"
#include "shared/result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ov1
{

/// edge_length^3 colours in the order of lut_argb: red outermost, blue innermost.
class lut_argb_variable
{
public:
    /// A copy of the table, with an empty text.
    template <std::size_t edge>
    static lut_argb_variable from_lut_argb(const lut_argb<edge>& table)
    {
        return {edge, table.get_entries(), {}};
    }

    /// The colour at grid point (i, j, k) = (red, green, blue), each 0..size-1, of a grid with size points per axis,
    /// resampled trilinearly if the table's own edge length differs. size is 17 or 32, edge_length at least 2.
    /// Throws std::out_of_range if there are fewer values than edge_length says.
    template <std::size_t size>
    argb_float get_integer(std::size_t i, std::size_t j, std::size_t k) const;

    /// Writes the table as a .cube file of 17 or 32 points per axis; another size throws std::logic_error before the
    /// file is touched. The title is the file's name without its extension; creator and author may be empty. A failure
    /// (cannot_write, no subject) leaves an old file as it was.
    result<> write_cube(const std::string& path, unsigned int size, const std::string& creator,
                        const std::string& author) const;

    /// Writes the table as a .3dl file, 17 points per axis; otherwise as write_cube.
    result<> write_3dl(const std::string& path, const std::string& creator, const std::string& author) const;

    /// write_cube and write_3dl for callers that need no reason: whether the file was written.
    bool save_as_cube(const std::string& path, unsigned int size, const std::string& creator,
                      const std::string& author) const;
    bool save_as_3dl(const std::string& path, const std::string& creator, const std::string& author) const;

    std::uint64_t edge_length = 0;  ///< points per axis
    std::vector<argb_float> values; ///< edge_length^3 of them, nominally 0..1, not limited
    std::string text;               ///< part of the format; empty in every table that the effect makes
};

extern template argb_float lut_argb_variable::get_integer<17>(std::size_t, std::size_t, std::size_t) const;
extern template argb_float lut_argb_variable::get_integer<32>(std::size_t, std::size_t, std::size_t) const;

} // namespace ov1

// Reads .cube tables of other programs and looks up colours in them.
//
//   # a comment
//   TITLE "log to display"
//   LUT_3D_SIZE 33                or LUT_1D_SIZE 1024
//   DOMAIN_MIN 0.0 0.0 0.0        the inputs of the first and the last entry; 0 and 1 by default
//   DOMAIN_MAX 1.0 1.0 1.0        or LUT_3D_INPUT_RANGE 0.0 1.0, the same for all channels
//   0.0 0.0 0.0                   three numbers per entry; in 3D red varies fastest, blue slowest
//   ...
#pragma once

#include "shared/argb_float.h"
#include "shared/result.h"
#include "shared/rgb_planes.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// A table of any size. Never changed after reading, so any number of threads may look up.
class cube_table
{
public:
    static constexpr std::size_t largest_1d = 65536;
    static constexpr std::size_t largest_3d = 256;

    /// Reads a whole text. An unknown keyword, a malformed number and a wrong number of entries are failures
    /// (invalid_grade, no subject) that name the line.
    static result<cube_table> read(std::string_view text);

    /// Whether the text had a LUT_3D_SIZE.
    bool is_3d() const { return three_dimensional; }
    /// Points per axis, or entries of each curve in 1D; 0 for a table that was not read.
    std::size_t get_size() const { return size; }
    /// Without its quotes; empty if the text has none.
    const std::string& get_title() const { return title; }

    /// Interpolates linearly along each axis. Inputs outside the domain are limited to it, a NaN counts as its lower
    /// end. Results are not limited; the alpha of c is returned unchanged.
    argb_float lookup(const argb_float& c) const;

    /// lookup on count pixels, in place.
    void apply(const rgb_planes<float>& row, std::size_t count) const;

private:
    friend class cube_parser;

    bool three_dimensional = true;
    std::size_t size = 0;
    std::string title;
    // Red, green, blue; domain_min < domain_max in each once an entry was read.
    std::array<float, 3> domain_min{0, 0, 0};
    std::array<float, 3> domain_max{1, 1, 1};
    std::vector<argb_float> entries; ///< in the file's order
};

} // namespace ov1

// All look tables, skin tables and skin masks of the product.
#pragma once

#include "effect/lut/integer_hsl.h"
#include "effect/lut/lut_argb.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace ov1
{

using look_table = lut_argb<lut_edge>;

/// The eighteen look tables in the order in which the effect loads them, then the four skin tables of the engine.
enum class look_id : std::size_t
{
    film_100,
    film_minus100,
    film_north,
    film_south,
    sky_100,
    sky_minus100,
    sky_purple,
    sky_turquoise,
    greenery_bright,
    greenery_olive,
    greenery_yellow,
    greenery_irish,
    shadows_100,
    shadows_minus100,
    mids_100,
    mids_minus100,
    highlights_100,
    highlights_minus100,
    skin_lighter,
    skin_darker,
    skin_yellowish,
    skin_reddened,
};

// The first 18 are files of the product; the last four are compiled into the engine.
inline constexpr std::size_t resource_count = 18;
inline constexpr std::size_t look_count = 22;

/// How a table is made and called.
struct look_row
{
    look_id id;
    std::string_view name;                      ///< of the resource without ".bin", or of the engine's array
    rgb_double (*look)(const rgb_double& code); ///< the table's entry for a colour, at full strength
};

/// One row for each look_id, in that order.
extern const std::array<look_row, look_count> look_rows;

/// 4913 weights in table order.
using mask_weights = std::vector<float>;

/// All data in one place: what make_looks writes and what measure() judges.
struct look_data
{
    std::array<look_table, look_count> tables;
    mask_weights select_skintones;         ///< 1 on skin
    mask_weights select_skintones_extreme; ///< 0 on skin in the wider sense, 1 elsewhere

    const look_table& operator[](look_id id) const { return tables[static_cast<std::size_t>(id)]; }
    look_table& operator[](look_id id) { return tables[static_cast<std::size_t>(id)]; }
};

/// Computes everything. Values are multiples of 2^-24, which floats hold exactly. This rounds away the last bits of the
/// mathematical functions, in which platforms differ: the tables are the same everywhere.
look_data compute_looks();

} // namespace ov1

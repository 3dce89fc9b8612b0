// The looks grouped by what they act on, and the lookup of a colour in a look table.
#pragma once

#include "tools/looks/look_data.h"

#include <span>

namespace ov1
{

// region_looks are all that act on one range of hues: sky, greenery and skin. Measure 1 holds them to greys.
inline constexpr look_id film_looks[] = {look_id::film_100, look_id::film_minus100, look_id::film_north,
                                         look_id::film_south};
inline constexpr look_id sky_looks[] = {look_id::sky_100, look_id::sky_minus100, look_id::sky_purple,
                                        look_id::sky_turquoise};
inline constexpr look_id greenery_looks[] = {look_id::greenery_bright, look_id::greenery_olive,
                                             look_id::greenery_yellow, look_id::greenery_irish};
inline constexpr look_id skin_looks[] = {look_id::skin_lighter, look_id::skin_darker, look_id::skin_yellowish,
                                         look_id::skin_reddened};
inline constexpr look_id region_looks[] = {look_id::sky_100,         look_id::sky_minus100,    look_id::sky_purple,
                                           look_id::sky_turquoise,   look_id::greenery_bright, look_id::greenery_olive,
                                           look_id::greenery_yellow, look_id::greenery_irish,  look_id::skin_lighter,
                                           look_id::skin_darker,     look_id::skin_yellowish,  look_id::skin_reddened};
inline constexpr look_id more_saturation[] = {look_id::shadows_100, look_id::mids_100, look_id::highlights_100};
inline constexpr look_id less_saturation[] = {look_id::shadows_minus100, look_id::mids_minus100,
                                              look_id::highlights_minus100};

/// The colour of a table for a colour, both in code values.
inline rgb_double through(const look_table& table, const rgb_double& code)
{
    const argb_float c =
        table.lookup({1.0f, static_cast<float>(code.r), static_cast<float>(code.g), static_cast<float>(code.b)});
    return {c.r, c.g, c.b};
}

} // namespace ov1

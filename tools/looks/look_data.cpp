#include "tools/looks/look_data.h"

#include "tools/looks/film_contrast.h"
#include "tools/looks/region_looks.h"
#include "tools/looks/zone_saturation.h"

#include <cmath>

namespace ov1
{

namespace
{

/// Rounded to a multiple of 2^-24 (compute_looks).
float on_grid(double v)
{
    constexpr double steps = 16777216.0; // 2^24
    return static_cast<float>(std::round(v * steps) / steps);
}

/// Calls visit with the colour of every grid point, in table order.
template <class visitor>
void for_each_grid_point(visitor visit)
{
    constexpr double last = lut_edge - 1;
    for (std::size_t r = 0; r < lut_edge; ++r)
        for (std::size_t g = 0; g < lut_edge; ++g)
            for (std::size_t b = 0; b < lut_edge; ++b)
                visit(rgb_double{static_cast<double>(r) / last, static_cast<double>(g) / last,
                                 static_cast<double>(b) / last});
}

/// A look at every grid point.
look_table table_of(rgb_double (*look)(const rgb_double&))
{
    look_table table(look_table::init_mode::none);
    auto entry = table.get_entries().begin();
    for_each_grid_point(
        [&](const rgb_double& code)
        {
            const rgb_double to = look(code);
            *entry++ = {1.0f, on_grid(to.r), on_grid(to.g), on_grid(to.b)};
        });
    return table;
}

} // namespace

const std::array<look_row, look_count> look_rows{{
    {look_id::film_100, "filmkontrast_100", filmkontrast_100},
    {look_id::film_minus100, "filmkontrast_minus100", filmkontrast_minus100},
    {look_id::film_north, "film_contrast_highlights_north", film_contrast_highlights_north},
    {look_id::film_south, "film_contrast_shadows_south", film_contrast_shadows_south},
    {look_id::sky_100, "sky_100", sky_100},
    {look_id::sky_minus100, "sky_minus100", sky_minus100},
    {look_id::sky_purple, "sky_bright_purple", sky_bright_purple},
    {look_id::sky_turquoise, "sky_dark_turquoise", sky_dark_turquoise},
    {look_id::greenery_bright, "greenery_bright", greenery_bright},
    {look_id::greenery_olive, "greenery_olive", greenery_olive},
    {look_id::greenery_yellow, "greenery_yellow", greenery_yellow},
    {look_id::greenery_irish, "greenery_irish", greenery_irish},
    {look_id::shadows_100, "saturation100_schatten", saturation100_schatten},
    {look_id::shadows_minus100, "saturation_minus100_schatten", saturation_minus100_schatten},
    {look_id::mids_100, "saturation100_mitten", saturation100_mitten},
    {look_id::mids_minus100, "saturation_minus100_mitten", saturation_minus100_mitten},
    {look_id::highlights_100, "saturation100_lichter", saturation100_lichter},
    {look_id::highlights_minus100, "saturation_minus100_lichter", saturation_minus100_lichter},
    {look_id::skin_lighter, "skintone_lut_haut_heller_data", skin_lighter},
    {look_id::skin_darker, "skintone_lut_haut_dunkler_data", skin_darker},
    {look_id::skin_yellowish, "skintone_lut_gelbsucht_data", skin_yellowish},
    {look_id::skin_reddened, "skintone_lut_sonnenbrand_data", skin_reddened},
}};

look_data compute_looks()
{
    look_data data;
    for (const look_row& row : look_rows)
        data[row.id] = table_of(row.look);
    for_each_grid_point(
        [&](const rgb_double& code)
        {
            data.select_skintones.push_back(on_grid(skin_weight(code)));
            data.select_skintones_extreme.push_back(on_grid(1.0 - wide_skin_weight(code)));
        });
    return data;
}

} // namespace ov1

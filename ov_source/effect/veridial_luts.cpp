#include "effect/veridial_luts.h"

namespace ov1
{

// A name is spelled out for each table: a search for a file name finds its table.
veridial_luts::veridial_luts()
    : filmkontrast_100(table::from_bin_resource("filmkontrast_100.bin"))
    , filmkontrast_minus100(table::from_bin_resource("filmkontrast_minus100.bin"))
    , film_contrast_highlights_north(table::from_bin_resource("film_contrast_highlights_north.bin"))
    , film_contrast_shadows_south(table::from_bin_resource("film_contrast_shadows_south.bin"))
    , sky_100(table::from_bin_resource("sky_100.bin"))
    , sky_minus100(table::from_bin_resource("sky_minus100.bin"))
    , sky_bright_purple(table::from_bin_resource("sky_bright_purple.bin"))
    , sky_dark_turquoise(table::from_bin_resource("sky_dark_turquoise.bin"))
    , greenery_bright(table::from_bin_resource("greenery_bright.bin"))
    , greenery_olive(table::from_bin_resource("greenery_olive.bin"))
    , greenery_yellow(table::from_bin_resource("greenery_yellow.bin"))
    , greenery_irish(table::from_bin_resource("greenery_irish.bin"))
    , saturation100_schatten(table::from_bin_resource("saturation100_schatten.bin"))
    , saturation_minus100_schatten(table::from_bin_resource("saturation_minus100_schatten.bin"))
    , saturation100_mitten(table::from_bin_resource("saturation100_mitten.bin"))
    , saturation_minus100_mitten(table::from_bin_resource("saturation_minus100_mitten.bin"))
    , saturation100_lichter(table::from_bin_resource("saturation100_lichter.bin"))
    , saturation_minus100_lichter(table::from_bin_resource("saturation_minus100_lichter.bin"))
{
}

veridial_luts::directions veridial_luts::film_contrast() const
{
    // Up, left, down, right, here and in the other two pads.
    return {&film_contrast_highlights_north, &filmkontrast_minus100, &film_contrast_shadows_south, &filmkontrast_100};
}

veridial_luts::directions veridial_luts::sky() const
{
    return {&sky_dark_turquoise, &sky_100, &sky_bright_purple, &sky_minus100};
}

veridial_luts::directions veridial_luts::greenery() const
{
    return {&greenery_yellow, &greenery_bright, &greenery_irish, &greenery_olive};
}

const veridial_luts::table& veridial_luts::saturation(zone z, bool more) const
{
    switch (z)
    {
    case zone::shadows:
        return more ? saturation100_schatten : saturation_minus100_schatten;
    case zone::mids:
        return more ? saturation100_mitten : saturation_minus100_mitten;
    case zone::highlights:
        break;
    }
    return more ? saturation100_lichter : saturation_minus100_lichter;
}

} // namespace ov1

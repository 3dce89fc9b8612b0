#include "tools/looks/measures.h"

#include "tools/looks/delta_e.h"
#include "tools/looks/look_groups.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ov1
{

namespace
{

constexpr int grey_steps = 1024;

rgb_double grey(int i)
{
    const double v = static_cast<double>(i) / grey_steps;
    return {v, v, v};
}

/// The largest dE00 between greys and the same greys after the looks.
double grey_shift(const look_data& data, std::span<const look_id> looks)
{
    double largest = 0.0;
    for (const look_id id : looks)
        for (int i = 0; i <= grey_steps; ++i)
            largest = std::max(largest, delta_e_2000(grey(i), through(data[id], grey(i))));
    return largest;
}

/// The number of grid points at most one step from grey that a look changes at all.
double moved_near_greys(const look_data& data, std::span<const look_id> looks)
{
    int count = 0;
    for (const look_id id : looks)
        for (std::size_t r = 0; r < lut_edge; ++r)
            for (std::size_t g = 0; g < lut_edge; ++g)
                for (std::size_t b = 0; b < lut_edge; ++b)
                {
                    const auto unit = [](std::size_t i) { return static_cast<float>(i) / (lut_edge - 1); };
                    const argb_float unchanged{1.0f, unit(r), unit(g), unit(b)};
                    if (std::max({r, g, b}) - std::min({r, g, b}) <= 1 && data[id].get_direct(r, g, b) != unchanged)
                        ++count;
                }
    return count;
}

struct grey_curve
{
    double chroma = 0.0; ///< the largest C*
    double least_slope = std::numeric_limits<double>::infinity();
    double most_slope = -std::numeric_limits<double>::infinity();
};

grey_curve film_curve(const look_data& data)
{
    grey_curve found;
    for (const look_id id : film_looks)
        for (int i = 0; i <= grey_steps; ++i)
        {
            const rgb_double to = through(data[id], grey(i));
            const cielab lab = cielab_of(to);
            found.chroma = std::max(found.chroma, std::hypot(lab.a, lab.b));
            if (i == 0)
                continue;
            const double slope = (to.g - through(data[id], grey(i - 1)).g) * grey_steps;
            found.least_slope = std::min(found.least_slope, slope);
            found.most_slope = std::max(found.most_slope, slope);
        }
    return found;
}

/// The largest change of black or white by any table.
double ends_shift(const look_data& data)
{
    double largest = 0.0;
    for (const look_table& table : data.tables)
    {
        const argb_float& black = table.get_entries().front();
        const argb_float& white = table.get_entries().back();
        for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
            largest = std::max({largest, std::abs(double{black.*channel}), std::abs(double{white.*channel} - 1.0)});
    }
    return largest;
}

/// The largest distance of any entry from 0..1.
double outside(const look_data& data)
{
    double largest = 0.0;
    for (const look_table& table : data.tables)
        for (const argb_float& e : table.get_entries())
            for (const double v : {e.r, e.g, e.b})
                largest = std::max({largest, -v, v - 1.0, std::isfinite(v) ? 0.0 : 1.0});
    return largest;
}

} // namespace

std::vector<measured> measure_greys(const look_data& data)
{
    // Saturation looks change colours one step from grey, and a grey between grid points is interpolated from those:
    // unlike for the other looks, small shifts are allowed.
    const grey_curve film = film_curve(data);
    return {
        {1, "sky, greenery, skin: greys, dE00", grey_shift(data, region_looks), 0.0, 0.01},
        {1, "sky, greenery, skin: near-grey grid points that move", moved_near_greys(data, region_looks), 0.0, 0.0},
        {2, "saturation +100: greys, dE00", grey_shift(data, more_saturation), 0.0, 0.5},
        {2, "saturation -100: greys, dE00", grey_shift(data, less_saturation), 0.0, 1.1},
        {3, "film: greys, C*", film.chroma, 0.0, 0.05},
        {3, "film: greys, least slope", film.least_slope, 0.5, 1.6},
        {3, "film: greys, largest slope", film.most_slope, 0.5, 1.6},
        {4, "black and white, shift", ends_shift(data), 0.0, 1e-6},
        {4, "entries outside 0..1, by", outside(data), 0.0, 0.0},
    };
}

} // namespace ov1

#include "tools/looks/measures.h"

#include "tools/looks/look_groups.h"
#include "tools/looks/memory_colours.h"
#include "tools/looks/shaping.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace ov1
{

namespace
{

constexpr int gradient_samples = 4096;

double between(double from, double to, int i) { return from + (to - from) * i / (gradient_samples - 1); }

/// The number of steps along a gradient at which the lightness goes the wrong way after the look.
int reversals(const look_table& table, const gradient& run)
{
    const double direction = cielab_of(run.to).lightness - cielab_of(run.from).lightness;
    int count = 0;
    double last = cielab_of(through(table, run.from)).lightness;
    for (int i = 1; i < gradient_samples; ++i)
    {
        const rgb_double code{between(run.from.r, run.to.r, i), between(run.from.g, run.to.g, i),
                              between(run.from.b, run.to.b, i)};
        const double lightness = cielab_of(through(table, code)).lightness;
        // Entries and weights are floats: smaller steps are rounding.
        count += (lightness - last) * direction < -1e-4;
        last = lightness;
    }
    return count;
}

/// By any film look, in degrees of OKLCh.
double largest_hue_shift(const look_data& data, std::span<const named_colour> colours)
{
    double largest = 0.0;
    for (const look_id id : film_looks)
        for (const named_colour& c : colours)
        {
            const oklch from = oklch_of(c.code), to = oklch_of(through(data[id], c.code));
            largest = std::max(largest, std::abs(hue_difference(from.hue, to.hue)));
        }
    return largest;
}

/// The skin patches, and the Monk tones with enough chroma to have a clear hue.
std::vector<named_colour> skin_colours()
{
    std::vector<named_colour> found{{"dark skin", patch("dark skin")}, {"light skin", patch("light skin")}};
    std::ranges::copy_if(monk_skin_tones, std::back_inserter(found),
                         [](const named_colour& c) { return oklch_of(c.code).chroma >= real_skin.chroma_from; });
    return found;
}

/// One look after the other, as the effect applies the zones.
rgb_double through_all(const look_data& data, std::span<const look_id> looks, rgb_double code)
{
    for (const look_id id : looks)
        code = through(data[id], code);
    return code;
}

/// The chroma that remains when all zones are desaturated, over the whole cube.
double largest_residual_chroma(const look_data& data)
{
    constexpr int points = 49; // per axis: the grid and two points between its points
    double largest = 0.0;
    for (int i = 0; i < points * points * points; ++i)
    {
        const auto unit = [](int place) { return static_cast<double>(place % points) / (points - 1); };
        const rgb_double code{unit(i / points / points), unit(i / points), unit(i)};
        largest = std::max(largest, oklch_of(through_all(data, less_saturation, code)).chroma);
    }
    return largest;
}

/// Whether 1.6 times the chroma uses at most a quarter of each channel's room, at full weight of the look.
bool has_room(const rgb_double& code)
{
    constexpr double share = 0.25;
    const oklch from = oklch_of(code);
    const rgb_double to = code_of(oklch{from.lightness, from.chroma * 1.6, from.hue});
    const auto fits = [](double v, double w) { return std::abs(w - v) <= share * (w > v ? 1.0 - v : v); };
    return grid_distance_from_grey(code) >= 2.0 && fits(code.r, to.r) && fits(code.g, to.g) && fits(code.b, to.b);
}

/// Least and largest chroma ratio of the three zones at +100.
std::pair<double, double> saturation_ratios(const look_data& data)
{
    double least = std::numeric_limits<double>::infinity(), largest = 0.0;
    for (const memory_colour* subject : {&real_sky, &real_greenery, &real_skin})
        for (const rgb_double& c : subject->samples())
            if (has_room(c))
            {
                const double ratio = oklch_of(through_all(data, more_saturation, c)).chroma / oklch_of(c).chroma;
                least = std::min(least, ratio);
                largest = std::max(largest, ratio);
            }
    return {least, largest};
}

/// A mask looked up like a table.
class mask_lookup
{
public:
    explicit mask_lookup(const mask_weights& weights)
        : table(look_table::init_mode::none)
    {
        std::ranges::transform(weights, table.get_entries().begin(), [](float w) { return argb_float{w, w, w, w}; });
    }

    double at(const rgb_double& code) const { return through(table, code).g; }
    double largest(std::span<const rgb_double> colours) const
    {
        double found = 0.0;
        for (const rgb_double& c : colours)
            found = std::max(found, at(c));
        return found;
    }

private:
    look_table table;
};

/// Colours that a skin mask must not select.
std::vector<rgb_double> greys_and_grass()
{
    std::vector<rgb_double> colours{patch("foliage"), patch("green"), patch("yellow green")};
    for (int i = 0; i <= 1024; ++i)
        colours.push_back({i / 1024.0, i / 1024.0, i / 1024.0});
    return colours;
}

/// The rows of measure 15 for one mask.
void append_masks(std::vector<measured>& rows, const std::string& name, const mask_lookup& mask)
{
    rows.push_back({15, name + ": greys and grass, largest", mask.largest(greys_and_grass()), 0.0, 0.0});
    rows.push_back({15, name + ": sky, largest", mask.largest(real_sky.samples()), 0.0, 0.0});
    rows.push_back({15, name + ": light skin", mask.at(patch("light skin")), 0.9, 1.0});
    rows.push_back({15, name + ": dark skin", mask.at(patch("dark skin")), 0.7, 1.0});
}

} // namespace

std::vector<measured> measure_pictures(const look_data& data)
{
    int turned = 0;
    for (const gradient& run : gradients)
        for (const look_table& table : data.tables)
            turned += reversals(table, run);
    const auto [least, largest] = saturation_ratios(data);
    const auto patches = std::span(colour_checker).first(coloured_patches);
    std::vector<measured> rows{
        {12, "gradients: lightness reversals", static_cast<double>(turned), 0.0, 0.0},
        {13, "film: hue of patches, degrees", largest_hue_shift(data, patches), 0.0, 3.0},
        {13, "film: hue of skin, degrees", largest_hue_shift(data, skin_colours()), 0.0, 1.5},
        {14, "three zones at -100: OKLab chroma left", largest_residual_chroma(data), 0.0, 0.02},
        {14, "three zones at +100: least chroma ratio", least, 1.55, 1.65},
        {14, "three zones at +100: largest chroma ratio", largest, 1.55, 1.65},
    };
    append_masks(rows, "skin mask", mask_lookup(data.select_skintones));
    mask_weights wide;
    for (const float rejected : data.select_skintones_extreme)
        wide.push_back(1.0f - rejected);
    append_masks(rows, "wide skin mask", mask_lookup(wide));
    return rows;
}

} // namespace ov1

#include "tools/looks/measures.h"

#include "tools/looks/delta_e.h"
#include "tools/looks/look_groups.h"
#include "tools/looks/memory_colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ov1
{

namespace
{

/// A colour that moves by less is at the edge of the look and says nothing about the direction.
constexpr double clear_move = 1.0;   // dE00
constexpr double clear_step = 0.003; // in OKLab

struct direction_row
{
    look_id id;
    const memory_colour& subject;
    // The signs of the look's changes: -1, +1, or 0 for those that are not its purpose.
    int lightness;
    int chroma;
    int hue;
};

const direction_row directions[] = {
    {look_id::sky_turquoise, real_sky, -1, 1, -1},
    {look_id::sky_100, real_sky, -1, 1, 0},
    {look_id::sky_purple, real_sky, 1, 1, 1},
    {look_id::sky_minus100, real_sky, 1, -1, 0},
    {look_id::greenery_yellow, real_greenery, 1, 1, -1},
    {look_id::greenery_bright, real_greenery, 1, 1, 0},
    {look_id::greenery_irish, real_greenery, -1, 1, 1},
    {look_id::greenery_olive, real_greenery, -1, -1, -1},
    {look_id::skin_lighter, real_skin, 1, -1, 0},
    {look_id::skin_darker, real_skin, -1, 1, 0},
    {look_id::skin_yellowish, real_skin, 0, 1, 1},
    {look_id::skin_reddened, real_skin, -1, 1, -1},
};

/// A NaN for no values.
double median(std::vector<double> values)
{
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// The median dE00 by which a look moves colours.
double median_move(const look_table& table, const std::vector<rgb_double>& colours)
{
    std::vector<double> moves;
    for (const rgb_double& c : colours)
        moves.push_back(delta_e_2000(c, through(table, c)));
    return median(std::move(moves));
}

/// How many of six signs are wrong: those at the subject's patch, and those of the median of its colours that move.
int wrong_signs(const look_data& data, const direction_row& row)
{
    const auto steps_of = [&](const rgb_double& code)
    {
        const oklch from = oklch_of(code), to = oklch_of(through(data[row.id], code));
        return std::array{row.lightness * (to.lightness - from.lightness),
                          row.chroma * std::log(to.chroma / from.chroma), row.hue * hue_difference(from.hue, to.hue)};
    };
    std::array<std::vector<double>, 3> of_samples;
    for (const rgb_double& c : row.subject.samples())
        if (delta_e_2000(c, through(data[row.id], c)) >= clear_move)
            for (std::size_t i = 0; i < of_samples.size(); ++i)
                of_samples[i].push_back(steps_of(c)[i]);
    const std::array of_patch = steps_of(patch(row.subject.patch));
    const std::array wanted{row.lightness, row.chroma, row.hue};
    int count = 0;
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (wanted[i] != 0)
            count += !(of_patch[i] > 0.0) + !(median(of_samples[i]) > 0.0);
    return count;
}

/// The largest dE00 of any patch that the looks of a subject should leave alone.
double largest_off_target(const look_data& data, const memory_colour& subject, std::span<const look_id> looks)
{
    double largest = 0.0;
    for (const named_colour& p : colour_checker)
        if (std::ranges::find(subject.related, p.name) == subject.related.end())
            for (const look_id id : looks)
                largest = std::max(largest, delta_e_2000(p.code, through(data[id], p.code)));
    return largest;
}

struct oklab_move
{
    oklab by;
    double length;
};

/// The way that a look moves a colour, in OKLab, and how far.
oklab_move move_of(const look_table& table, const rgb_double& code)
{
    const oklab from = oklab_of(code), to = oklab_of(through(table, code));
    const oklab by{to.lightness - from.lightness, to.a - from.a, to.b - from.b};
    return {by, std::hypot(by.lightness, by.a, by.b)};
}

/// The median cosine between the moves of two looks, over a subject's colours.
double opposition(const look_data& data, const memory_colour& subject, look_id one, look_id other)
{
    std::vector<double> cosines;
    for (const rgb_double& c : subject.samples())
    {
        const oklab_move p = move_of(data[one], c), q = move_of(data[other], c);
        if (p.length > clear_step && q.length > clear_step)
            cosines.push_back((p.by.lightness * q.by.lightness + p.by.a * q.by.a + p.by.b * q.by.b) /
                              (p.length * q.length));
    }
    return median(std::move(cosines));
}

} // namespace

std::vector<measured> measure_targets(const look_data& data)
{
    std::vector<measured> rows;
    for (const direction_row& row : directions)
    {
        const std::string name(look_rows[static_cast<std::size_t>(row.id)].name);
        rows.push_back({5, name + ": median dE00", median_move(data[row.id], row.subject.samples()), 4.0, 13.0});
    }
    std::vector<rgb_double> patches;
    for (const named_colour& p : colour_checker)
        patches.push_back(p.code);
    for (const look_id id : film_looks)
        rows.push_back({5, std::string(look_rows[static_cast<std::size_t>(id)].name) + ": median dE00",
                        median_move(data[id], patches), 4.0, 13.0});
    int wrong = 0;
    for (const direction_row& row : directions)
        wrong += wrong_signs(data, row);
    rows.push_back({6, "signs of lightness, chroma and hue that are wrong", static_cast<double>(wrong), 0.0, 0.0});
    rows.push_back({7, "sky: other patches, dE00", largest_off_target(data, real_sky, sky_looks), 0.0, 0.1});
    rows.push_back(
        {7, "greenery: other patches, dE00", largest_off_target(data, real_greenery, greenery_looks), 0.0, 1.5});
    rows.push_back({7, "skin: other patches, dE00", largest_off_target(data, real_skin, skin_looks), 0.0, 2.5});
    const auto opposite = [&](const char* what, const memory_colour& subject, look_id one, look_id other, double most)
    { rows.push_back({8, what, opposition(data, subject, one, other), -1.0, most}); };
    opposite("sky +100 against -100", real_sky, look_id::sky_100, look_id::sky_minus100, -0.9);
    opposite("sky purple against turquoise", real_sky, look_id::sky_purple, look_id::sky_turquoise, -0.9);
    opposite("greenery bright against olive", real_greenery, look_id::greenery_bright, look_id::greenery_olive, -0.9);
    opposite("skin lighter against darker", real_skin, look_id::skin_lighter, look_id::skin_darker, -0.9);
    opposite("greenery yellow against irish", real_greenery, look_id::greenery_yellow, look_id::greenery_irish, -0.6);
    opposite("skin yellowish against reddened", real_skin, look_id::skin_yellowish, look_id::skin_reddened, -0.6);
    return rows;
}

} // namespace ov1

#include "ov_source/effect/build/double_precision_build.h"

#include "effect/skin_data.h"

#include <algorithm>
#include <cmath>

namespace ov1::test
{

namespace
{

using index = parameter_index;

grid identity()
{
    grid g;
    for (int i = 0; i < 4913; ++i)
        g.push_back({i / 289 / 16.0, i / 17 % 17 / 16.0, i % 17 / 16.0});
    return g;
}

grid from_data(const skin_table_data& data)
{
    grid g;
    for (const argb_float& e : data)
        g.push_back({e.r, e.g, e.b});
    return g;
}

rgb look_up(const grid& g, const rgb& c)
{
    rgb sum{};
    for (int corner = 0; corner < 8; ++corner)
    {
        double weight = 1;
        int at = 0;
        for (int axis = 0; axis < 3; ++axis)
        {
            const double x = std::clamp(c[axis], 0.0, 1.0) * 16;
            const int low = std::min(static_cast<int>(x), 15);
            const int upper = corner >> axis & 1;
            weight *= upper ? x - low : 1 - (x - low);
            at = at * 17 + low + upper;
        }
        for (int i = 0; i < 3; ++i)
            sum[i] += weight * g[at][i];
    }
    return sum;
}

/// Hue in degrees, chroma and lightness in percent; the hexcone as piecewise linear functions of the hue.
rgb from_hsl(double hue, double chroma, double lightness)
{
    lightness = std::clamp(lightness, 0.0, 100.0);
    chroma = std::min(std::clamp(chroma, 0.0, 100.0), 100 - 2 * std::abs(lightness - 50));
    rgb c;
    for (int i = 0; i < 3; ++i)
    {
        const double away = std::abs(std::remainder(hue - 120.0 * i, 360.0));
        const double level = std::clamp((120 - away) / 60, 0.0, 1.0);
        c[i] = std::min((lightness - chroma / 2 + chroma * level) * 2.56 / 255, 1.0);
    }
    return c;
}

struct hsl
{
    double hue, chroma, lightness;
};

hsl to_hsl(const rgb& c)
{
    const double max = *std::max_element(c.begin(), c.end()), min = *std::min_element(c.begin(), c.end());
    const double chroma = max - min;
    double hue = 0;
    if (chroma > 0)
        hue = max == c[0]   ? (c[1] - c[2]) * 60 / chroma
              : max == c[1] ? (c[2] - c[0]) * 60 / chroma + 120
                            : (c[0] - c[1]) * 60 / chroma + 240;
    return {hue, chroma * 100, (max + min) * 50};
}

struct point
{
    rgb source, target;
    double radius;
};

grid bent(const std::vector<point>& points)
{
    grid g = identity();
    for (rgb& entry : g)
    {
        rgb to = entry;
        for (const point& p : points)
        {
            const double reach = std::pow((std::clamp(p.radius, 1.0, 256.0) - 1) / 255 * 510 + 2, 2);
            double squared = 0;
            for (int i = 0; i < 3; ++i)
                squared += std::pow((entry[i] - p.source[i]) * 65535, 2);
            const double weight = 1 - std::min(std::sqrt(squared) / reach, 1.0);
            for (int i = 0; i < 3; ++i)
                to[i] += (p.target[i] - p.source[i]) * weight;
        }
        for (int i = 0; i < 3; ++i)
            entry[i] = std::clamp(to[i], 0.0, 1.0);
    }
    return g;
}

std::vector<point> wheel_points(const grade_settings& s)
{
    const auto v = [&](index i) { return s.value(i); };
    std::vector<point> points{{from_hsl(0, 0, 50),
                               from_hsl(v(index::master_hue), std::min(v(index::master_chroma) / 2, 100.0) / 2, 50),
                               140}};
    const struct
    {
        index first;
        double lightness, reach, chroma_scale;
    } zones[] = {{index::shadows_hue, 23, 75, 55}, {index::mids_hue, 50, 90, 50}, {index::highlights_hue, 78, 90, 44}};
    for (const auto& z : zones)
    {
        const auto control = [&](int i) { return v(static_cast<index>(static_cast<int>(z.first) + i)); };
        const double base = z.lightness + control(2);
        points.push_back({from_hsl(0, 0, base),
                          from_hsl(control(0), z.chroma_scale * control(1) / 100, base + 2 * control(3)),
                          z.reach + control(4) / 5});
    }
    return points;
}

void add(grid& dst, const grid& src, double amount, bool limit)
{
    const grid id = identity();
    for (std::size_t i = 0; i < dst.size(); ++i)
        for (int c = 0; c < 3; ++c)
        {
            dst[i][c] += (src[i][c] - id[i][c]) * amount;
            if (limit)
                dst[i][c] = std::clamp(dst[i][c], 0.0, 1.0);
        }
}

double angle_weight(double angle, int direction)
{
    return std::max(0.0, 1 - std::abs(std::remainder(angle - 90 * direction, 360.0)) / 90);
}

grid chroma_pushed(int percent)
{
    grid g = identity();
    for (std::size_t i = 0; i < g.size(); ++i)
    {
        const auto [hue, chroma, lightness] = to_hsl(g[i]);
        const double share = std::clamp((chroma - 1) / 6, 0.0, 1.0);
        const double weight = 1.0 - lut_masks::select_skintones_extreme.weights[i];
        g[i] = from_hsl(hue, std::max(chroma + weight * percent * share, 0.0), lightness);
    }
    return g;
}

void push_skin(grid& g, const grade_settings& s)
{
    const grid id = identity();
    const auto& mask = lut_masks::select_skintones.weights;
    for (std::size_t i = 0; i < g.size(); ++i)
        for (int c = 0; c < 3; ++c)
            g[i][c] += (id[i][c] - g[i][c]) * mask[i] * s.value(index::protect_skin_tones) / 100;

    // The point moves along the border of the square at a constant speed as the angle grows.
    const double angle = s.value(index::skin_angle);
    const double around = std::fmod(angle + 45, 360.0) / 90;
    const double along = 200 * (around - std::floor(around)) - 100;
    const rgb sides[4] = {{100, -along}, {-along, -100}, {-100, along}, {along, 100}};
    const rgb place = sides[static_cast<int>(around) % 4];
    const auto tenths = [](double v) { return std::trunc(v * 10 + (v < 0 ? -1e-4 : 1e-4)) / 1000; };
    const double strength = s.value(index::skin_tone_strength) / 100;

    const double chroma_push = strength * tenths(place[0]);
    if (std::abs(chroma_push) >= 0.001)
    {
        grid change = chroma_pushed(static_cast<int>(chroma_push * 40));
        const grid still = chroma_pushed(0);
        for (std::size_t i = 0; i < g.size(); ++i)
            for (int c = 0; c < 3; ++c)
                change[i][c] += id[i][c] - still[i][c];
        add(g, change, 1, true);
    }
    const auto mix_in = [&](const skin_table_data& data, double amount)
    {
        grid change = from_data(data);
        for (std::size_t i = 0; i < g.size(); ++i)
            for (int c = 0; c < 3; ++c)
                change[i][c] = id[i][c] + (change[i][c] - id[i][c]) * mask[i];
        add(g, change, std::abs(amount), true);
    };
    const double hue_push = -strength * tenths(place[1]);
    if (std::abs(hue_push) >= 0.001)
        mix_in(hue_push > 0 ? skintone_lut_gelbsucht_data : skintone_lut_sonnenbrand_data, hue_push);
    const double brightness = s.value(index::skin_tone_brightness) / 100;
    if (std::abs(brightness) >= 0.001)
        mix_in(brightness > 0 ? skintone_lut_haut_heller_data : skintone_lut_haut_dunkler_data, brightness);
}

} // namespace

grid double_precision_build(const grade_settings& s, const std::function<grid(std::size_t)>& looks)
{
    if (s.bypass())
        return identity();
    grid g = bent(wheel_points(s));

    grid working = identity();
    for (int direction = 0; direction < 4; ++direction)
    {
        add(working, looks(4 + direction),
            s.value(index::sky_strength) / 100 * angle_weight(s.value(index::sky_angle), direction), false);
        add(working, looks(8 + direction),
            s.value(index::greenery_strength) / 100 * angle_weight(s.value(index::greenery_angle), direction), false);
    }
    add(g, working, 1, true);
    push_skin(g, s);

    for (rgb& entry : g)
    {
        const auto [hue, chroma, lightness] = to_hsl(entry);
        entry = from_hsl(hue, chroma * (1 + s.value(index::global_chroma) / 100),
                         lightness + s.value(index::global_luminance));
    }
    for (int z = 0; z < 3; ++z)
    {
        const double v = s.value(static_cast<index>(static_cast<int>(index::shadows_saturation) + 6 * z));
        const grid look = looks(12 + 2 * z + (v < 0 ? 1 : 0));
        for (rgb& entry : g)
        {
            const rgb composed = look_up(look, entry);
            for (int c = 0; c < 3; ++c)
                entry[c] += (composed[c] - entry[c]) * std::abs(v) / 100;
        }
    }
    for (int direction = 0; direction < 4; ++direction)
        add(g, looks(direction),
            s.value(index::film_contrast_strength) / 100 * angle_weight(s.value(index::film_contrast_angle), direction),
            angle_weight(s.value(index::film_contrast_angle), direction) > 0);
    return g;
}

} // namespace ov1::test

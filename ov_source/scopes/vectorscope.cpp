#include "scopes/vectorscope.h"

#include "scopes/tent_axis.h"
#include "scopes/trace_curve.h"

#include <array>
#include <cmath>
#include <numbers>
#include <numeric>

namespace ov1
{

namespace
{

// Lengths are colour differences, so that the scale grows with the area.
constexpr double shown_reach = 0.55; // of either axis
constexpr float target_level = 0.75f;
constexpr double circle_radius = 0.5;
constexpr double cross_reach = 0.03;
constexpr double frame_reach = 0.022;
constexpr double label_distance = 1.17; // of the label from the centre, relative to that of the square
constexpr scope_colour skin_colour{200, 156, 116};
/// The share of the picture at which a bin has full brightness. It is small, because colours spread over many bins.
constexpr float brightest_share = 1.f / 256;

/// A primary or secondary colour at 100 %, and its label.
struct target
{
    const char* name;
    float r, g, b;
};

constexpr std::array<target, 6> targets{
    {{"R", 1, 0, 0}, {"Mg", 1, 0, 1}, {"B", 0, 0, 1}, {"Cy", 0, 1, 1}, {"G", 0, 1, 0}, {"Yl", 1, 1, 0}}};

colour_difference target_difference(const target& t)
{
    return colour_difference_of(t.r * target_level, t.g * target_level, t.b * target_level);
}

/// The scope is a square in the middle of its area.
int side_of(const rect& area) { return std::min(area.width, area.height); }

/// A colour difference as a length in pixels.
double pixels_of(double difference, const rect& area) { return difference / (2 * shown_reach) * side_of(area); }

/// The colour of the trace at a colour difference: luma 0.5, raised by a fifth to stand out from the background.
scope_colour shown_colour(const colour_difference& c)
{
    const argb_float colour = colour_of(c);
    const auto code = [](float v) { return static_cast<std::uint8_t>(std::clamp(v * 1.2f, 0.f, 1.f) * 255); };
    return {code(colour.r), code(colour.g), code(colour.b)};
}

void draw_scale(bool skin_line, const rect& area, int line_width, scope_picture& picture)
{
    const auto [x, y] = place_of({}, area);
    const double cross = pixels_of(cross_reach, area), radius = pixels_of(circle_radius, area);
    paint_circle(picture, x, y, radius, line_width, graticule_colour);
    paint_line(picture, x - cross, y, x + cross, y, line_width, limit_colour);
    paint_line(picture, x, y - cross, x, y + cross, line_width, limit_colour);
    for (const target& t : targets)
    {
        const vectorscope_place at = place_of(target_difference(t), area);
        paint_frame(picture, at.x, at.y, pixels_of(frame_reach, area), line_width, limit_colour);
    }
    if (!skin_line)
        return;
    // Angles go counter-clockwise, rows downwards.
    const double angle = skin_line_degrees * std::numbers::pi / 180;
    paint_line(picture, x, y, x + radius * std::cos(angle), y - radius * std::sin(angle), line_width, skin_colour);
}

/// The share of the picture in each bin, resampled to the columns of the square: level_count rows of square.width.
/// Columns are resampled here, rows in draw_trace: one axis after the other needs far fewer taps than both at once.
std::vector<float> read_columns(const vectorscope_counts& counts, const tent_axis& columns)
{
    const std::uint32_t pixels = std::accumulate(counts.bins.begin(), counts.bins.end(), 0u);
    const float share = pixels == 0 ? 0.f : 1.f / (brightest_share * static_cast<float>(pixels));
    std::vector<float> read(level_count * columns.size());
    std::array<float, level_count> row;
    for (std::size_t cr = 0; cr < level_count; ++cr)
    {
        for (std::size_t cb = 0; cb < level_count; ++cb)
            row[cb] = static_cast<float>(counts.at(cb, cr)) * share;
        for (std::size_t i = 0; i < columns.size(); ++i)
            read[cr * columns.size() + i] = columns.at(i, row.data());
    }
    return read;
}

void draw_trace(const vectorscope_counts& counts, const rect& square, scope_picture& picture)
{
    const auto side = static_cast<std::size_t>(square.width);
    const double step = 2 * shown_reach / square.width; // colour difference per pixel
    const double first = -shown_reach + step / 2;       // at the left column and the bottom row
    const auto level_at = [](double difference)
    { return difference * static_cast<double>(last_level) + static_cast<double>(difference_centre); };
    // Cb grows from left to right, Cr falls from top to bottom.
    const tent_axis columns(level_count, side, level_at(first), step * static_cast<double>(last_level));
    const tent_axis rows(level_count, side, level_at(-first), -step * static_cast<double>(last_level));
    const std::vector<float> read = read_columns(counts, columns);
    std::vector<float> densities(side);
    const trace_curve& curve = trace_curve::get();
    for (std::size_t y = 0; y < side; ++y)
    {
        rows.at_all(y, read.data(), side, densities.data());
        std::uint32_t* const row = picture.row(square.y + static_cast<int>(y)) + square.x;
        const auto cr = static_cast<float>(-first - step * static_cast<double>(y));
        for (std::size_t x = 0; x < side; ++x)
        {
            const float cover = curve(densities[x]);
            const auto cb = static_cast<float>(first + step * static_cast<double>(x));
            // Most pixels have no trace; for these no colour is computed.
            if (cover > 0)
                row[x] = blended(row[x], shown_colour({cb, cr}), cover);
        }
    }
}

} // namespace

void vectorscope_counts::reset() { bins.assign(level_count * level_count, 0); }

void vectorscope_counts::add(const vectorscope_counts& other)
{
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] += other.bins[i];
}

vectorscope_place place_of(const colour_difference& c, const rect& area)
{
    const double x = area.x + area.width / 2.0, y = area.y + area.height / 2.0;
    return {x + pixels_of(c.cb, area), y - pixels_of(c.cr, area)};
}

void draw_vectorscope(const vectorscope_counts& counts, bool skin_line, const rect& area, int line_width,
                      scope_picture& picture)
{
    const int side = side_of(area);
    // Counts that were never reset have no bins.
    if (side < 2 || counts.bins.empty())
        return;
    draw_scale(skin_line, area, line_width, picture);
    const rect square{area.x + (area.width - side) / 2, area.y + (area.height - side) / 2, side, side};
    draw_trace(counts, square, picture);
}

scope_labels vectorscope_labels(const rect& area)
{
    scope_labels labels;
    const vectorscope_place centre = place_of({}, area);
    for (const target& t : targets)
    {
        const vectorscope_place at = place_of(target_difference(t), area);
        labels.push_back(
            {t.name, centre.x + (at.x - centre.x) * label_distance, centre.y + (at.y - centre.y) * label_distance});
    }
    return labels;
}

} // namespace ov1

#include "tools/looks/measures.h"

#include "tools/looks/look_groups.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ov1
{

namespace
{

using vector_3 = std::array<double, 3>;
using matrix_3 = std::array<vector_3, 3>; ///< columns: the change of the output along red, green and blue

vector_3 vector_of(const argb_float& c) { return {c.r, c.g, c.b}; }

vector_3 cross(const vector_3& p, const vector_3& q)
{
    return {p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0]};
}

double dot(const vector_3& p, const vector_3& q) { return p[0] * q[0] + p[1] * q[1] + p[2] * q[2]; }

double determinant(const matrix_3& m) { return dot(m[0], cross(m[1], m[2])); }

/// The largest singular value: the root of the largest eigenvalue of the symmetric m^T m, in closed form by Smith,
/// "Eigenvalues of a symmetric 3 x 3 matrix" (1961).
double largest_gain(const matrix_3& m)
{
    const double a = dot(m[0], m[0]), b = dot(m[1], m[1]), c = dot(m[2], m[2]);
    const double d = dot(m[0], m[1]), e = dot(m[1], m[2]), f = dot(m[0], m[2]);
    const double mean = (a + b + c) / 3.0;
    const double p = std::sqrt(
        ((a - mean) * (a - mean) + (b - mean) * (b - mean) + (c - mean) * (c - mean) + 2.0 * (d * d + e * e + f * f)) /
        6.0);
    if (p == 0.0)
        return std::sqrt(mean);
    const double a_p = (a - mean) / p, b_p = (b - mean) / p, c_p = (c - mean) / p;
    const double d_p = d / p, e_p = e / p, f_p = f / p;
    const double half_determinant =
        (a_p * (b_p * c_p - e_p * e_p) - d_p * (d_p * c_p - e_p * f_p) + f_p * (d_p * e_p - b_p * f_p)) / 2.0;
    return std::sqrt(mean + 2.0 * p * std::cos(std::acos(std::clamp(half_determinant, -1.0, 1.0)) / 3.0));
}

/// The eight entries around a cell, bit 2 of the index being red, bit 1 green and bit 0 blue.
using cell_corners = std::array<vector_3, 8>;

cell_corners corners_of(const look_table& table, std::size_t r, std::size_t g, std::size_t b)
{
    cell_corners corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = vector_of(table.get_direct(r + (i >> 2), g + (i >> 1 & 1), b + (i & 1)));
    return corners;
}

/// The derivative of the trilinear lookup at a position within the cell, each coordinate 0..1.
matrix_3 derivative(const cell_corners& corners, const vector_3& position)
{
    constexpr double steps = lut_edge - 1;
    matrix_3 m{};
    for (std::size_t i = 0; i < corners.size(); ++i)
        for (std::size_t axis = 0; axis < 3; ++axis)
        {
            double weight = steps;
            for (std::size_t k = 0; k < 3; ++k)
            {
                const bool upper = (i >> (2 - k) & 1) != 0;
                // Along the axis itself the upper corners count positive and the lower ones negative; the position
                // weights the other two axes.
                weight *= k == axis ? (upper ? 1.0 : -1.0) : (upper ? position[k] : 1.0 - position[k]);
            }
            for (std::size_t channel = 0; channel < 3; ++channel)
                m[axis][channel] += weight * corners[i][channel];
        }
    return m;
}

struct lattice_range
{
    double least_determinant = std::numeric_limits<double>::infinity();
    double largest_gain = 0.0;
};

void widen(lattice_range& range, const cell_corners& corners)
{
    for (int i = 0; i < 27; ++i)
    {
        // At 0, 1/2 and 1 along each axis of the cell.
        const matrix_3 m = derivative(corners, {i / 9 / 2.0, i / 3 % 3 / 2.0, i % 3 / 2.0});
        range.least_determinant = std::min(range.least_determinant, determinant(m));
        range.largest_gain = std::max(range.largest_gain, largest_gain(m));
    }
}

/// At 27 positions in each of the table's 4,096 cells. A determinant of 0 or less means that the table folds: two
/// colours change places.
void widen(lattice_range& range, const look_table& table)
{
    for (std::size_t r = 0; r + 1 < lut_edge; ++r)
        for (std::size_t g = 0; g + 1 < lut_edge; ++g)
            for (std::size_t b = 0; b + 1 < lut_edge; ++b)
                widen(range, corners_of(table, r, g, b));
}

/// Over all of the looks.
lattice_range range_of(const look_data& data, std::span<const look_id> looks)
{
    lattice_range range;
    for (const look_id id : looks)
        widen(range, data[id]);
    return range;
}

/// The range of the skin tables as the effect uses them, through the mask.
lattice_range range_of_masked_skin(const look_data& data)
{
    lattice_range range;
    for (const look_id id : skin_looks)
    {
        look_table masked;
        for (std::size_t i = 0; i < masked.get_entries().size(); ++i)
        {
            argb_float& e = masked.get_entries()[i];
            e = lerp(e, data[id].get_entries()[i], data.select_skintones[i]);
        }
        widen(range, masked);
    }
    return range;
}

/// The largest |one + other - identity - rest| in any channel of any entry.
double remainder(const look_table& one, const look_table& other, const look_table& identity, const look_table& rest)
{
    double largest = 0.0;
    for (std::size_t i = 0; i < one.get_entries().size(); ++i)
    {
        const vector_3 p = vector_of(one.get_entries()[i]), q = vector_of(other.get_entries()[i]);
        const vector_3 s = vector_of(identity.get_entries()[i]), t = vector_of(rest.get_entries()[i]);
        for (std::size_t k = 0; k < 3; ++k)
            largest = std::max(largest, std::abs(p[k] + q[k] - s[k] - t[k]));
    }
    return largest;
}

} // namespace

std::vector<measured> measure_lattice(const look_data& data)
{
    constexpr double any = std::numeric_limits<double>::infinity();
    const look_table identity;
    const double opposites = remainder(data[look_id::film_100], data[look_id::film_minus100], identity, identity);
    const double sum =
        remainder(data[look_id::film_north], data[look_id::film_south], identity, data[look_id::film_100]);
    const struct
    {
        std::string name;
        lattice_range range;
        double least_determinant, most_gain;
    } groups[] = {
        {"sky", range_of(data, sky_looks), 0.01, 5.0},
        {"greenery", range_of(data, greenery_looks), 0.01, 5.0},
        {"skin", range_of(data, skin_looks), 0.01, 5.0},
        {"skin through the mask", range_of_masked_skin(data), 0.01, 5.0},
        {"film", range_of(data, film_looks), 0.01, 2.0},
        {"saturation +100", range_of(data, more_saturation), 0.01, 5.0},
        {"saturation -100", range_of(data, less_saturation), -0.05, 7.0},
    };

    std::vector<measured> rows{
        {9, "film: (+100) + (-100) - 2 identity", opposites, 0.0, 1e-6},
        {9, "film: north + south - identity - (+100)", sum, 0.0, 1e-6},
    };
    for (const auto& group : groups)
        rows.push_back(
            {10, group.name + ": least determinant", group.range.least_determinant, group.least_determinant, any});
    for (const auto& group : groups)
        rows.push_back({11, group.name + ": largest gain of noise", group.range.largest_gain, 0.0, group.most_gain});
    return rows;
}

} // namespace ov1

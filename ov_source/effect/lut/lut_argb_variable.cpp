#include "effect/lut/lut_argb_variable.h"

#include "effect/lut/cube_format.h"
#include "effect/lut/export_text.h"
#include "effect/lut/threedl_format.h"
#include "platform/atomic_file.h"

#include <algorithm>
#include <span>

namespace ov1
{

namespace
{

/// Where point `index` of an axis of size points falls on an axis of edge points.
template <std::size_t size>
grid_position resampled_position(std::size_t index, std::size_t edge)
{
    const double per_index = static_cast<double>(edge - 1) * (1.0 / (size - 1));
    // The last point belongs to the last cell, with a fraction of 1.
    const std::size_t lower = std::min(static_cast<std::size_t>(per_index * static_cast<double>(index)), edge - 2);
    const double indices_per_step = static_cast<double>(size - 1) / static_cast<double>(edge - 1);
    const double fraction = static_cast<double>(index) / indices_per_step - static_cast<double>(lower);
    return {lower, lower + 1, static_cast<float>(fraction)};
}

result<> write_text(const std::string& path, const std::string& text)
{
    return replace_file(path, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

} // namespace

template <std::size_t size>
argb_float lut_argb_variable::get_integer(std::size_t i, std::size_t j, std::size_t k) const
{
    const auto n = static_cast<std::size_t>(edge_length);
    // Checked: the values are public and can be fewer than the edge length says.
    const auto at = [&](std::size_t r, std::size_t g, std::size_t b) -> const argb_float&
    { return values.at((r * n + g) * n + b); };
    // No interpolation: exported entries are the entries of the table, not roundings of them.
    if (n == size)
        return at(i, j, k);

    return trilinear(resampled_position<size>(i, n), resampled_position<size>(j, n), resampled_position<size>(k, n),
                     at);
}

template argb_float lut_argb_variable::get_integer<17>(std::size_t, std::size_t, std::size_t) const;
template argb_float lut_argb_variable::get_integer<32>(std::size_t, std::size_t, std::size_t) const;

result<> lut_argb_variable::write_cube(const std::string& path, unsigned int size, const std::string& creator,
                                       const std::string& author) const
{
    return write_text(path, cube_text(*this, size, export_title(path), creator, author));
}

result<> lut_argb_variable::write_3dl(const std::string& path, const std::string& creator,
                                      const std::string& author) const
{
    return write_text(path, threedl_text(*this, export_title(path), creator, author));
}

bool lut_argb_variable::save_as_cube(const std::string& path, unsigned int size, const std::string& creator,
                                     const std::string& author) const
{
    return bool(write_cube(path, size, creator, author));
}

bool lut_argb_variable::save_as_3dl(const std::string& path, const std::string& creator,
                                    const std::string& author) const
{
    return bool(write_3dl(path, creator, author));
}

} // namespace ov1

#include "shared/param_value.h"

#include <algorithm>
#include <cstring>

namespace ov1
{

static_assert(std::endian::native == std::endian::little, "cells are kept in the byte order of documents");

namespace
{

/// The bytes of a value at the front of a cell; the rest is zero.
template <typename T>
param_cell cell_of(const T& v)
{
    param_cell cell;
    std::memcpy(cell.bytes.data(), &v, sizeof v);
    return cell;
}

/// The inverse. Copies, because a cell is aligned for bytes only.
template <typename T>
T from_cell(const param_cell& cell)
{
    T v;
    std::memcpy(&v, cell.bytes.data(), sizeof v);
    return v;
}

/// First to min, then to max: if the bounds are crossed, the result is max. A NaN stays a NaN.
template <typename T>
T bounced(T v, T min, T max)
{
    if (min > v)
        v = min;
    if (v > max)
        v = max;
    return v;
}

/// False for a NaN, which fails both comparisons.
bool within_unit(const param_argb& c)
{
    const auto inside = [](float x) { return x >= 0.0f && x <= 1.0f; };
    return inside(c.alpha) && inside(c.red) && inside(c.green) && inside(c.blue);
}

} // namespace

param_cell param_cell::of(float v) { return cell_of(v); }
param_cell param_cell::of(std::int32_t v) { return cell_of(v); }
// One byte, 0 or 1, whatever the size of bool.
param_cell param_cell::of(bool v) { return cell_of(std::uint8_t{v}); }
param_cell param_cell::of(const param_argb& v) { return cell_of(v); }

float param_cell::as_continuous() const { return from_cell<float>(*this); }
std::int32_t param_cell::as_integral() const { return from_cell<std::int32_t>(*this); }

void param_value::bounce_and_quantize(param_value& v) const
{
    // Bounds of another kind cannot be compared with the value.
    if (v.type != type)
        return;
    if (type == param_type::continuous)
        v.value = param_cell::of(bounced(v.value.as_continuous(), v.min.as_continuous(), v.max.as_continuous()));
    else if (type == param_type::integral)
        v.value = param_cell::of(bounced(v.value.as_integral(), v.min.as_integral(), v.max.as_integral()));
}

bool param_value::is_valid(const param_value& v) const
{
    if (v.type != type)
        return false;
    switch (type)
    {
    case param_type::continuous:
        return v.min.as_continuous() <= v.value.as_continuous() && v.value.as_continuous() <= v.max.as_continuous();
    case param_type::integral:
        return v.min.as_integral() <= v.value.as_integral() && v.value.as_integral() <= v.max.as_integral();
    case param_type::boolean:
        return true;
    case param_type::color:
        return within_unit(v.value.as_color());
    case param_type::unset:
        break;
    }
    return false;
}

bool param_value::is_default_value() const
{
    // Unset and unknown kinds have no default.
    return static_cast<std::uint32_t>(type) < param_type_count && same_value(type, value, default_value);
}

bool same_value(param_type type, const param_cell& x, const param_cell& y)
{
    switch (type)
    {
    case param_type::continuous:
        return x.as_continuous() == y.as_continuous();
    case param_type::integral:
        return x.as_integral() == y.as_integral();
    case param_type::boolean:
        return x.bytes[0] == y.bytes[0];
    case param_type::color:
        return x.as_color() == y.as_color();
    case param_type::unset:
        break;
    }
    return x == y;
}

} // namespace ov1

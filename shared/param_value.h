// A parameter's value with its kind, default and bounds, and the three rules that act on it.
#pragma once

#include "shared/param_argb.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace ov1
{

enum class param_type : std::uint32_t
{
    continuous = 0, ///< 32-bit float
    integral = 1,   ///< 32-bit signed integer
    boolean = 2,    ///< one byte, 0 or 1
    color = 3,      ///< param_argb
    unset = 0xFFFFFFFFu,
};

/// The number of valid kinds; kinds from this number on are invalid.
inline constexpr std::uint32_t param_type_count = 4;

/// Sixteen bytes that hold a value of any kind, little-endian, unused bytes zero.
class param_cell
{
public:
    static constexpr std::size_t size = 16;

    /// A cell with this value; all other bytes are zero.
    static param_cell of(float v);
    static param_cell of(std::int32_t v);
    static param_cell of(bool v);
    static param_cell of(const param_argb& v);

    /// The value, read as one kind. A cell does not know its kind.
    float as_continuous() const;
    std::int32_t as_integral() const;
    bool as_boolean() const { return bytes[0] != 0; }
    param_argb as_color() const { return std::bit_cast<param_argb>(bytes); }

    /// Compares bytes; same_value compares values.
    bool operator==(const param_cell&) const = default;

    std::array<std::uint8_t, size> bytes{};
};

/// Four bytes that hold a bound: a float or a signed integer, unused (zero) for the other kinds.
class param_bound
{
public:
    /// A bound of a continuous or of an integral value.
    static param_bound of(float v) { return {std::bit_cast<std::uint32_t>(v)}; }
    static param_bound of(std::int32_t v) { return {static_cast<std::uint32_t>(v)}; }

    float as_continuous() const { return std::bit_cast<float>(bits); }
    std::int32_t as_integral() const { return static_cast<std::int32_t>(bits); }

    std::uint32_t bits = 0;
};

/// A self-describing value, copied by value everywhere. A new record is unset and otherwise zero.
struct param_value
{
    /// Decides how the cells and the bounds are read.
    param_type type = param_type::unset;
    param_cell value;
    param_cell default_value;
    param_bound min;
    param_bound max;

    /// Clamps v to the bounds that v itself carries, first to min, then to max. Leaves v unchanged if its kind is not
    /// this record's, or if it is a boolean or a colour.
    void bounce_and_quantize(param_value& v) const;

    /// Whether v is of this record's kind, the kind is one of the four, and the value lies within the bounds that v
    /// carries (colours: every channel within 0..1). A NaN is never valid.
    [[nodiscard]] bool is_valid(const param_value& v) const;

    /// Whether the value equals the default, compared as the kind's own type; false for an unset record.
    [[nodiscard]] bool is_default_value() const;
};

/// Whether two cells are equal as values of a kind: a NaN differs from itself, -0.0 equals 0.0. Cells of an invalid
/// kind are compared byte by byte.
[[nodiscard]] bool same_value(param_type type, const param_cell& x, const param_cell& y);

} // namespace ov1

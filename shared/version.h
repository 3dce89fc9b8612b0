// A version of four numbers.
#pragma once

#include <cstdint>

namespace ov1
{

struct version
{
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t patch = 0;
    std::int32_t build = 0;

    bool operator==(const version&) const = default;
};

/// The version of this product. Documents and presets are compatible within a major version.
inline constexpr version product_version{3, 7, 0, 0};

} // namespace ov1

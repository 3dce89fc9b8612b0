// A weight for every grid point, and the mixing of two tables by these weights.
#pragma once

#include "effect/lut/lut_argb.h"

#include <array>
#include <cstddef>

namespace ov1
{

/// Which weight a mask gives to an entry whose stored weight is m.
enum class mask_mode : int
{
    as_is = 0,      ///< weight m
    complement = 1, ///< weight 1 - m
};

/// One weight per grid point in table order, nominally 0..1.
template <std::size_t edge>
struct lut_mask
{
    std::array<float, lut_argb<edge>::entry_count> weights{};

    /// The weight of the entry with an index of the table.
    float weight(std::size_t i, mask_mode mode) const
    {
        return mode == mask_mode::complement ? 1.0f - weights[i] : weights[i];
    }

    /// Moves every entry of dst, alpha included, towards other by its weight.
    void mix(lut_argb<edge>& dst, const lut_argb<edge>& other, mask_mode mode) const
    {
        auto& entries = dst.get_entries();
        for (std::size_t i = 0; i < entries.size(); ++i)
            entries[i] = lerp(entries[i], other.get_entries()[i], weight(i, mode));
    }
};

} // namespace ov1

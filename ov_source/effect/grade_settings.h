// The values of all parameters at one moment: what a table is built from.
#pragma once

#include "effect/parameter_table.h"

#include <array>
#include <cstring>

namespace ov1
{

/// A plain copy, taken under the lock of the records, so that a build never mixes two states. A new one holds the
/// defaults.
struct grade_settings
{
    struct setting
    {
        float value; ///< in the parameter's own unit (parameter_table.h); the bypass is 0 or 1
        float max;   ///< the record's upper bound; the wheels' values are shares of it
    };

    /// Indexed by parameter_index.
    std::array<setting, parameter_count> settings = []
    {
        std::array<setting, parameter_count> rows{};
        for (std::size_t i = 0; i < parameter_count; ++i)
            rows[i] = {0.0f, parameter_table[i].max};
        return rows;
    }();

    /// Floats as doubles: the build computes in double precision.
    double value(parameter_index i) const { return settings[static_cast<std::size_t>(i)].value; }
    double max(parameter_index i) const { return settings[static_cast<std::size_t>(i)].max; }
    /// Whether the effect is switched off and the table the identity.
    bool bypass() const { return value(parameter_index::global_bypass) != 0.0; }

    /// Byte by byte: -0.0 differs from 0.0. Equal settings give equal tables.
    bool same_bytes(const grade_settings& other) const
    {
        return std::memcmp(settings.data(), other.settings.data(), sizeof settings) == 0;
    }
};

} // namespace ov1

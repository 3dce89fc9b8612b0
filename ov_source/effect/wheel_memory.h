// Keeps a wheel's chroma and lightness within each other's reach while a user moves them.
#pragma once

#include "effect/zone.h"

#include <array>
#include <atomic>

namespace ov1
{

/// What the coupling remembers: the last chroma and lightness of every zone that it did not set itself. So a value that
/// it had to draw back returns when there is room again. May be told from several threads.
class wheel_memory
{
public:
    /// Takes note of an accepted set; other parameters than chroma and lightness are none of its business.
    void note(zone z, zone_control control, float value)
    {
        if (control == zone_control::chroma)
            chroma[static_cast<std::size_t>(z)] = value;
        else if (control == zone_control::lightness)
            lightness[static_cast<std::size_t>(z)] = value;
    }

    float last_chroma(zone z) const { return chroma[static_cast<std::size_t>(z)]; }
    float last_lightness(zone z) const { return lightness[static_cast<std::size_t>(z)]; }

private:
    std::array<std::atomic<float>, 3> chroma{};
    std::array<std::atomic<float>, 3> lightness{};
};

} // namespace ov1

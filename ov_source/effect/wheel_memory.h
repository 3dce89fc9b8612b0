// Remembers the chroma and the lightness that a user chose for each wheel.
// Each value is an atomic of its own: a drag sets one control at a time, so no two of them have to match.
#pragma once

#include "effect/zone.h"

#include <array>
#include <atomic>

namespace ov1
{

/// The last chroma and lightness of every zone that the coupling (zone_colour.h) did not set itself. A value that the
/// coupling had to reduce returns when there is room for it again. Safe from several threads.
class wheel_memory
{
public:
    /// Records a value that was set; controls other than chroma and lightness are ignored.
    void note(zone z, zone_control control, float value)
    {
        if (control == zone_control::chroma)
            chroma[static_cast<std::size_t>(z)] = value;
        else if (control == zone_control::lightness)
            lightness[static_cast<std::size_t>(z)] = value;
    }

    /// In the unit of the parameters; 0 until a value was set.
    float last_chroma(zone z) const { return chroma[static_cast<std::size_t>(z)]; }
    float last_lightness(zone z) const { return lightness[static_cast<std::size_t>(z)]; }

private:
    std::array<std::atomic<float>, 3> chroma{};
    std::array<std::atomic<float>, 3> lightness{};
};

} // namespace ov1

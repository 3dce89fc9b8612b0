// What the engine does to colours for every position of a pad's handle.
#pragma once

#include "tools/artwork/engine_colours.h"

#include <vector>

namespace ov1
{

/// Graded colours on a lattice of angles and strengths, interpolated between. The lattice holds every angle at which a
/// pad's behaviour changes, and in between looks change linearly with angle and strength: at() equals the engine.
class pad_response
{
public:
    /// Grades the colours once for every point of the lattice.
    pad_response(engine_colours& engine, parameter_index angle, parameter_index strength,
                 const std::vector<rgb_double>& colours);

    /// The graded colour of that index, at an angle in degrees, 0..360, and a strength in percent, 0..100.
    rgb_double at(std::size_t colour, double angle, double strength) const;

private:
    static constexpr std::size_t angles = 24;
    static constexpr std::size_t strengths = 10;

    const rgb_double& point(std::size_t colour, std::size_t angle, std::size_t strength) const;

    std::vector<std::vector<rgb_double>> graded; ///< by angle, then by strength: all colours of that point
};

} // namespace ov1

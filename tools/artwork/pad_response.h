// What a pad does to colours, all over its disc.
#pragma once

#include "tools/artwork/engine_colours.h"

#include <vector>

namespace ov1
{

/// The engine's answers on a lattice of angles and strengths. The angles include all at which a pad changes its manner,
/// and between them and with the strength looks grow evenly, so that the lattice gives the engine's own colours.
class pad_response
{
public:
    pad_response(engine_colours& engine, parameter_index angle, parameter_index strength,
                 const std::vector<rgb_double>& colours);

    /// What becomes of the colour of that index at an angle in degrees and a strength of 0..100.
    rgb_double at(std::size_t colour, double angle, double strength) const;

private:
    static constexpr std::size_t angles = 24;
    static constexpr std::size_t strengths = 10;

    const rgb_double& point(std::size_t colour, std::size_t angle, std::size_t strength) const;

    std::vector<std::vector<rgb_double>> answers; ///< one for each angle and strength, strengths innermost
};

} // namespace ov1

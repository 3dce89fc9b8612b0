// A random but pleasant look.
#pragma once

#include <random>

namespace ov1
{

class icomponent_v1;

/// Replaces the grade: clears the master wheel, the global luminance and the highlights wheel, tints the shadows, gives
/// the mids the same or the opposite hue at a fraction of the strength, and turns the pads at random. Every value is
/// set with edit false, in a fixed order; a parameter that the component does not have is skipped. Takes 35 numbers
/// from the engine whatever the component has: the same engine gives the same look on every system.
void randomize_look(icomponent_v1& component, std::mt19937& engine);

/// The same with an engine of its own, seeded from the system's source of chance: another look at every call.
void randomize_look(icomponent_v1& component);

} // namespace ov1

// A random but pleasant look.
#pragma once

#include <random>

namespace ov1
{

class icomponent_v1;

/// Replaces the grade: resets the master wheel, the global luminance and the highlights wheel, tints the shadows, gives
/// the mids the same or the opposite hue at a fraction of the strength, and sets the pads at random. Every value is set
/// with edit false, in a fixed order; parameters that the component does not have are skipped. Always takes 35 numbers
/// from the engine, so that the same seed gives the same look on every system.
void randomize_look(icomponent_v1& component, std::mt19937& engine);

/// The same with an engine seeded by std::random_device: another look at every call.
void randomize_look(icomponent_v1& component);

} // namespace ov1

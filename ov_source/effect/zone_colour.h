// The colour that a zone's wheel asks for, and how the wheel's chroma and lightness constrain each other: a colour far
// from middle lightness has room for little chroma.
// In the hexcone a light or dark colour has room for little chroma. So the controls of a wheel limit each other: the
// one that is dragged wins, and the other returns to the value that the user chose as soon as there is room.
#pragma once

#include "effect/grade_settings.h"
#include "effect/zone.h"

namespace ov1
{

/// Both in percent.
struct chroma_luma
{
    double chroma;
    double luma;
};

/// In percent: the zone's lightness moved by its Range, without its Lightness.
double base_luma(const grade_settings& settings, zone z);

/// What the zone's Chroma, Range and Lightness ask for. The luma can leave 0..100.
chroma_luma chroma_luma_of(const grade_settings& settings, zone z);

/// The zone's Chroma, in the parameter's unit, after its Lightness or Range changed: last_chroma, which the user chose,
/// or the most that the present lightness allows.
double coupled_chroma(const grade_settings& settings, zone z, double last_chroma);

/// The zone's Lightness, in the parameter's unit, after its Chroma changed: last_lightness, which the user chose, moved
/// only as far as the present chroma requires.
double coupled_lightness(const grade_settings& settings, zone z, double last_lightness);

} // namespace ov1

// The colour that a zone's wheel asks for, and how the wheel's chroma and lightness hold each other.
#pragma once

#include "effect/grade_settings.h"
#include "effect/zone.h"

namespace ov1
{

/// In percent.
struct chroma_luma
{
    double chroma;
    double luma;
};

/// The zone's lightness before the wheel's own Lightness: its place moved by Range.
double base_luma(const grade_settings& settings, zone z);

/// What the zone's Chroma, Range and Lightness ask for. The luma can leave 0..100.
chroma_luma chroma_luma_of(const grade_settings& settings, zone z);

/// The zone's Chroma, in the parameter's unit, after its Lightness or Range changed: last_chroma, which the user chose,
/// as far as the lightness that settings ask for allows.
double coupled_chroma(const grade_settings& settings, zone z, double last_chroma);

/// The zone's Lightness, in the parameter's unit, after its Chroma changed: last_lightness, which the user chose, moved
/// as little as leaves room for the chroma that settings ask for.
double coupled_lightness(const grade_settings& settings, zone z, double last_lightness);

} // namespace ov1

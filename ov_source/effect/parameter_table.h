// The effect's parameters: names, bounds and order.
#pragma once

#include <array>
#include <cstddef>

namespace ov1
{

/// Positions in the order of registration. Hosts, documents and presets know this order: new ones are only appended.
enum class parameter_index : std::size_t
{
    global_bypass,
    master_hue,
    master_chroma,
    global_chroma,
    global_luminance,
    // Three wheels of six parameters each, in the order of zone_control: zone_parameter (zone.h) relies on it.
    shadows_hue,
    shadows_chroma,
    shadows_range,
    shadows_lightness,
    shadows_smoothness,
    shadows_saturation,
    mids_hue,
    mids_chroma,
    mids_range,
    mids_lightness,
    mids_smoothness,
    mids_saturation,
    highlights_hue,
    highlights_chroma,
    highlights_range,
    highlights_lightness,
    highlights_smoothness,
    highlights_saturation,
    // Pads: the angle and the distance of the handle.
    sky_angle,
    sky_strength,
    greenery_angle,
    greenery_strength,
    film_contrast_angle,
    film_contrast_strength,
    skin_angle,
    skin_tone_strength,
    // The two arcs of the skin pad.
    skin_tone_brightness,
    protect_skin_tones,
};

inline constexpr std::size_t parameter_count = 33;

/// A continuous parameter's name and bounds; every default is 0. Hues and angles are in degrees, all else is in percent
/// of the control's range. The first, the bypass, is a boolean: its bounds are those of its two states. A name is the
/// parameter's identity (make_uid): it never changes.
struct parameter_row
{
    const char* name;
    float min;
    float max;
};

inline constexpr std::array<parameter_row, parameter_count> parameter_table{{
    {"Global Bypass", 0, 1},
    {"Master Hue", 0, 360},
    {"Master Chroma", 0, 100},
    {"Global Chroma", -100, 100},
    {"Global Luminance", -100, 100},
    {"Shadows Hue", 0, 360},
    {"Shadows Chroma", 0, 100},
    {"Shadows Range", -10, 10},
    {"Shadows Lightness", -10, 10},
    {"Shadows Smoothness", -100, 100},
    {"Shadows Saturation", -100, 100},
    {"Mids Hue", 0, 360},
    {"Mids Chroma", 0, 100},
    {"Mids Range", -10, 10},
    {"Mids Lightness", -10, 10},
    {"Mids Smoothness", -100, 100},
    {"Mids Saturation", -100, 100},
    {"Highlights Hue", 0, 360},
    {"Highlights Chroma", 0, 100},
    {"Highlights Range", -10, 10},
    {"Highlights Lightness", -10, 10},
    {"Highlights Smoothness", -100, 100},
    {"Highlights Saturation", -100, 100},
    {"Sky Angle", 0, 360},
    {"Sky Strength", 0, 100},
    {"Greenery Angle", 0, 360},
    {"Greenery Strength", 0, 100},
    {"Film Contrast Angle", 0, 360},
    {"Film Contrast Strength", 0, 100},
    {"Skin Angle", 0, 360},
    {"Skin Tone Strength", 0, 100},
    {"Skin Tone Brightness", -100, 100},
    {"Protect Skin Tones", 0, 100},
}};

} // namespace ov1

#include "editor/panel/panel_table.h"

#include "editor/controls/geometry/arc_geometry.h"

namespace ov1
{

namespace
{

// The neutral ramp on either side of a wheel.
constexpr const char* grey_left = "gray_slider_background_left.png";
constexpr const char* grey_right = "gray_slider_background_right.png";
// All three ranges have the same text.
constexpr const char* range_tooltip = "{en:Shift the effect range towards the shadows or the highlights}"
                                      "{de:Effektbereich in Richtung Schatten oder Glanzpunkte verschieben}";

/// A range has two arrows, which need room to move apart.
constexpr panel_arc range_arc(const char* parameter)
{
    return {parameter, grey_left, true, spread_arc_inset_points, range_tooltip};
}

constexpr panel_arc lightness_arc(const char* parameter, const char* tooltip)
{
    return {parameter, grey_right, false, arc_inset_points, tooltip};
}

// In each list of arcs the left one comes first, and of two sliders smoothness.

constexpr panel_arc master_arcs[] = {
    {"Global Chroma", "global_saturation_background.png", true, arc_inset_points,
     "{en:Increase or decrease the saturation of the entire image}{de:Sättigung des gesamten Bildes einstellen}"},
    {"Global Luminance", grey_right, false, arc_inset_points,
     "{en:Increase or decrease the brightness of the entire image}{de:Helligkeit des gesamten Bildes einstellen}"},
};

constexpr panel_arc shadows_arcs[] = {
    range_arc("Shadows Range"),
    lightness_arc("Shadows Lightness", "{en:Brighten up or darken the shadows}{de:Schatten aufhellen oder abdunkeln}"),
};
constexpr panel_slider shadows_sliders[] = {
    {"Shadows Smoothness", "SMOOTHNESS",
     "{en:Increase or decrease the effect range for the shadows}{de:Bereich des Effektes für die Schatten einstellen}"},
    {"Shadows Saturation", "SATURATION",
     "{en:Increase or decrease the saturation for the shadows}{de:Sättigung für die Schatten einstellen}"},
};

constexpr panel_arc highlights_arcs[] = {
    range_arc("Highlights Range"),
    lightness_arc("Highlights Lightness",
                  "{en:Brighten up or darken the highlights}{de:Glanzpunkte aufhellen oder abdunkeln}"),
};
constexpr panel_slider highlights_sliders[] = {
    {"Highlights Smoothness", "SMOOTHNESS",
     "{en:Increase or decrease the effect range for the highlights}"
     "{de:Bereich des Effektes für die Glanzpunkte einstellen}"},
    {"Highlights Saturation", "SATURATION",
     "{en:Increase or decrease the saturation for the highlights}{de:Sättigung für die Glanzpunkte einstellen}"},
};

constexpr panel_arc mids_arcs[] = {
    range_arc("Mids Range"),
    lightness_arc("Mids Lightness", "{en:Brighten up or darken the mids}{de:Mitteltöne aufhellen oder abdunkeln}"),
};
constexpr panel_slider mids_sliders[] = {
    {"Mids Smoothness", "SMOOTHNESS",
     "{en:Increase or decrease the effect range for the mids}{de:Bereich des Effektes für die Mitteltöne einstellen}"},
    {"Mids Saturation", "SATURATION",
     "{en:Increase or decrease the saturation for the mids}{de:Sättigung für die Mitteltöne einstellen}"},
};

constexpr panel_arc skin_arcs[] = {
    {"Protect Skin Tones", "skin_protection_slider_background_left.png", true, spread_arc_inset_points,
     "{en:Adjust skin tone protection}{de:Hautton Schutz anpassen}"},
    {"Skin Tone Brightness", "skin_brightness_slider_background_right.png", false, arc_inset_points,
     "{en:Brighten up or darken the skin tones}{de:Hauttöne aufhellen oder abdunkeln}"},
};

/// In the order of creation. The x offsets make three columns 150 points apart; the last row has two wheels.
constexpr std::array<panel, panel_count> panels = {{
    {panel_slot::master,
     "MASTER",
     "master_xy_background.png",
     "Master Hue",
     "Master Chroma",
     "{en:Control the hue and tint of the entire image}{de:Farbton und Färbung des gesamten Bildes einstellen}",
     0,
     40,
     master_arcs,
     {}},
    {panel_slot::shadows, "SHADOWS", "shadows_xy_background.png", "Shadows Hue", "Shadows Chroma",
     "{en:Control the hue and tint of the shadows}{de:Farbton und Färbung der Schatten einstellen}", -150, 160,
     shadows_arcs, shadows_sliders},
    {panel_slot::highlights, "HIGHLIGHTS", "highlights_xy_background.png", "Highlights Hue", "Highlights Chroma",
     "{en:Control the hue and tint of the highlights}{de:Farbton und Färbung der Glanzpunkte einstellen}", 150, 160,
     highlights_arcs, highlights_sliders},
    {panel_slot::sky,
     "SKY",
     "sky_xy_background.png",
     "Sky Angle",
     "Sky Strength",
     "{en:Adjust sky blue colours}{de:Blautöne des Himmels anpassen}",
     150,
     458,
     {},
     {}},
    // "gras" and the blank after "colours": the text's own spelling.
    {panel_slot::greenery,
     "GREENERY",
     "greenery_xy_background.png",
     "Greenery Angle",
     "Greenery Strength",
     "{en:Adjust gras green colours }{de:Grasgrüne Farbtöne anpassen}",
     -150,
     458,
     {},
     {}},
    {panel_slot::skin,
     "Skin",
     "skin_xy_background.png",
     "Skin Angle",
     "Skin Tone Strength",
     "{en:Adjust skin colors}{de:Hauttöne anpassen}",
     -100,
     620,
     skin_arcs,
     {}},
    {panel_slot::film_contrast,
     "Film Contrast",
     "film_contrast_xy_background.png",
     "Film Contrast Angle",
     "Film Contrast Strength",
     "{en:Adjust film contrast}{de:Filmkontrast anpassen}",
     100,
     620,
     {},
     {}},
    {panel_slot::mids, "MIDS", "mids_xy_background.png", "Mids Hue", "Mids Chroma",
     "{en:Control the hue and tint of the mids}{de:Farbton und Färbung der Mitteltöne einstellen}", 0, 320, mids_arcs,
     mids_sliders},
}};

} // namespace

std::span<const panel, panel_count> get_panels() { return panels; }

} // namespace ov1

// Colours, fonts and pictures that the parts of the editor share.
#pragma once

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/ccolor.h"
#include "vstgui/lib/cfont.h"

namespace ov1
{

namespace style
{

inline constexpr VSTGUI::CColor background(47, 47, 47);
inline constexpr VSTGUI::CColor raised(58, 58, 58);
inline constexpr VSTGUI::CColor sunken(34, 34, 34);
inline constexpr VSTGUI::CColor scroller(47, 47, 47);
inline constexpr VSTGUI::CColor bar(30, 30, 30, 215);
inline constexpr VSTGUI::CColor menu(40, 40, 40, 250);
inline constexpr VSTGUI::CColor hairline(72, 72, 72);
inline constexpr VSTGUI::CColor label_colour(114, 114, 114);
inline constexpr VSTGUI::CColor text_colour(190, 190, 190);
inline constexpr VSTGUI::CColor bright_text(226, 226, 226);
inline constexpr VSTGUI::CColor handle_colour(151, 151, 151);
inline constexpr VSTGUI::CColor accent(224, 148, 62);

/// Arial 12 bold italic.
VSTGUI::SharedPointer<VSTGUI::CFontDesc> panel_label_font();
/// Arial 12.
VSTGUI::SharedPointer<VSTGUI::CFontDesc> text_font();
/// Arial 11.
VSTGUI::SharedPointer<VSTGUI::CFontDesc> small_font();

} // namespace style

/// A picture of the resources, two of its pixels to a point. A missing one is empty and draws nothing.
VSTGUI::SharedPointer<VSTGUI::CBitmap> load_artwork(const char* name);

/// The first of a sheet's 2 x 2 frames alone.
VSTGUI::SharedPointer<VSTGUI::CBitmap> load_first_frame(const char* name);

} // namespace ov1

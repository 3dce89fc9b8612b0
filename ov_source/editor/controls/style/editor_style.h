// The editor's colours and fonts, and how it loads its pictures.
#pragma once

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/ccolor.h"
#include "vstgui/lib/cfont.h"

namespace ov1
{

/// Every colour and font of the editor. Colours of the toolkit's own (black, white) are used as they are.
namespace style
{

using VSTGUI::CColor;

// Surfaces.
inline constexpr CColor background(47, 47, 47);
inline constexpr CColor sunken(34, 34, 34);
inline constexpr CColor scroller = background;
inline constexpr CColor bar(30, 30, 30, 215);  ///< over the preview
inline constexpr CColor menu(40, 40, 40, 250); ///< over the window
inline constexpr CColor tip(28, 28, 28);       ///< hints, read-outs, help
inline constexpr CColor dimming(0, 0, 0, 140); ///< over what a question or help covers
inline constexpr CColor dialog(56, 56, 56);
inline constexpr CColor dialog_field(36, 36, 36); ///< a name is typed into
inline constexpr CColor value_field(30, 30, 30);  ///< a value is typed into
inline constexpr CColor button(66, 66, 66);
inline constexpr CColor button_hovered(78, 78, 78);
inline constexpr CColor button_pressed(56, 56, 56);

// Lines.
inline constexpr CColor hairline(72, 72, 72);
inline constexpr CColor tip_frame(84, 84, 84);
inline constexpr CColor centre_line(85, 85, 85); ///< of a slider
inline constexpr CColor button_frame(92, 92, 92);
inline constexpr CColor button_on_frame(176, 176, 176);
inline constexpr CColor dialog_frame = button_frame;
inline constexpr CColor value_field_frame(110, 110, 110);
inline constexpr CColor split_line(255, 255, 255, 220);
inline constexpr CColor split_shadow(0, 0, 0, 110);

// Handles.
inline constexpr CColor arrow(176, 176, 176);
inline constexpr CColor handle_frame(151, 151, 151);   ///< the circle on a wheel
inline constexpr CColor handle_fill(255, 255, 255, 0); ///< transparent: the wheel's colour shows

// Text, from dark to bright.
inline constexpr CColor label_text(114, 114, 114);
inline constexpr CColor value_text(134, 134, 134);
inline constexpr CColor scale_text(176, 176, 176); ///< on the scopes
inline constexpr CColor dialog_text(182, 182, 182);
inline constexpr CColor normal_text(190, 190, 190);
inline constexpr CColor button_text(200, 200, 200);
inline constexpr CColor tip_text(204, 204, 204);
inline constexpr CColor value_hovered_text(214, 214, 214);
inline constexpr CColor bright_text(226, 226, 226);

/// What is current, focused or marked.
inline constexpr CColor accent(224, 148, 62);

using font_pointer = VSTGUI::SharedPointer<VSTGUI::CFontDesc>;

font_pointer title_font();       ///< Arial 14 bold
font_pointer panel_label_font(); ///< Arial 12 bold italic
font_pointer text_font();        ///< Arial 12
font_pointer small_font();       ///< Arial 11
font_pointer tiny_font();        ///< Arial 10

} // namespace style

/// A picture of the resources, at artwork_scale. A missing one is empty and draws nothing.
VSTGUI::SharedPointer<VSTGUI::CBitmap> load_artwork(const char* name);

/// The upper left of a sheet's 2 x 2 frames, as a picture of its own.
VSTGUI::SharedPointer<VSTGUI::CBitmap> load_first_frame(const char* name);

} // namespace ov1

// The look that the editor's text fields share.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// What distinguishes the fields from each other.
struct text_field_style
{
    style::font_pointer font;
    VSTGUI::CColor text;
    VSTGUI::CColor background;
    VSTGUI::CColor frame;
    VSTGUI::CCoord corner_radius = 0.0; ///< in points; 0 keeps the corners square
};

/// Sets font, colours and corners, and makes each key change the field's text at once, so that a Return that another
/// view handles finds all that was typed. The field keeps a reference to the font.
void apply_style(VSTGUI::CTextEdit& field, const text_field_style& chosen);

/// Starts the text 8 points from the left edge. Without this a field centres its text.
void align_left(VSTGUI::CTextEdit& field);

} // namespace ov1

// Widths of text in a font.
#pragma once

#include "editor/controls/style/text_lines.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// Measures in a font, in points, without anything to draw on. It keeps the font.
line_width measure_of(const VSTGUI::SharedPointer<VSTGUI::CFontDesc>& font);

} // namespace ov1

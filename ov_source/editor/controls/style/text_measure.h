// Widths of text in a font.
#pragma once

#include "editor/controls/style/text_lines.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// A function that measures text in this font, in points. It needs no drawing context and holds a reference to the
/// font.
line_width measure_of(const VSTGUI::SharedPointer<VSTGUI::CFontDesc>& font);

} // namespace ov1

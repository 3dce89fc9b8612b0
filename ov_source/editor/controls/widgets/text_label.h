// Plain text in the window: labels, and values that follow something.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// Text without background and frame, centred, which takes no mouse events. The caller adds it to a container, which
/// then owns it.
VSTGUI::CTextLabel* make_text_label(const VSTGUI::CRect& place, const char* text, const style::font_pointer& font,
                                    const VSTGUI::CColor& colour);

} // namespace ov1

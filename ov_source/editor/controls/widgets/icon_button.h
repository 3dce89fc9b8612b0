// The square buttons with an icon, of toolbar and preview bar.
#pragma once

#include "editor/controls/widgets/cov_button.h"

#include <string>

namespace ov1
{

inline constexpr VSTGUI::CCoord icon_button_size = 28.0;

/// A button with its upper left corner at a point. artwork names a sheet among the resources, see COVButton; tooltip is
/// UTF-8 in the user's language. The caller adds it to a container, which then owns it.
COVButton* make_icon_button(const VSTGUI::CPoint& corner, VSTGUI::IControlListener& listener,
                            VSTGUI::CTextButton::Style style, const char* artwork, const std::string& tooltip);

} // namespace ov1

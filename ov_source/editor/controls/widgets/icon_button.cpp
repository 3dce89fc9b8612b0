#include "editor/controls/widgets/icon_button.h"

#include "editor/controls/style/editor_style.h"

namespace ov1
{

COVButton* make_icon_button(const VSTGUI::CPoint& corner, VSTGUI::IControlListener& listener,
                            VSTGUI::CTextButton::Style style, const char* artwork, const std::string& tooltip)
{
    const VSTGUI::CRect place(corner, VSTGUI::CPoint(icon_button_size, icon_button_size));
    auto* const button = new COVButton(place, &listener, -1, style, nullptr);
    button->setIcon(load_artwork(artwork));
    button->setTooltipText(tooltip.c_str());
    return button;
}

} // namespace ov1

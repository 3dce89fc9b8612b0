#include "editor/controls/widgets/text_label.h"

namespace ov1
{

VSTGUI::CTextLabel* make_text_label(const VSTGUI::CRect& place, const char* text, const style::font_pointer& font,
                                    const VSTGUI::CColor& colour)
{
    auto* const label = new VSTGUI::CTextLabel(place, text);
    label->setFont(font);
    label->setFontColor(colour);
    label->setTransparency(true);
    label->setStyle(VSTGUI::CParamDisplay::kNoFrame);
    label->setMouseEnabled(false);
    return label;
}

} // namespace ov1

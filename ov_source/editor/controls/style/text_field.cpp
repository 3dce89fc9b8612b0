#include "editor/controls/style/text_field.h"

namespace ov1
{

namespace
{

constexpr VSTGUI::CPoint left_inset(8.0, 0.0); // in points

} // namespace

void apply_style(VSTGUI::CTextEdit& field, const text_field_style& chosen)
{
    field.setFont(chosen.font);
    field.setFontColor(chosen.text);
    field.setBackColor(chosen.background);
    field.setFrameColor(chosen.frame);
    if (chosen.corner_radius > 0.0)
    {
        field.setStyle(VSTGUI::CTextEdit::kRoundRectStyle);
        field.setRoundRectRadius(chosen.corner_radius);
    }
    field.setImmediateTextChange(true); // otherwise the text changes only when the field loses the focus
}

void align_left(VSTGUI::CTextEdit& field)
{
    field.setHoriAlign(VSTGUI::kLeftText);
    field.setTextInset(left_inset);
}

} // namespace ov1

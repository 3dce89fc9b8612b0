// A slider that writes its value above its handle.
#pragma once

#include "editor/controls/widgets/csimple_slider.h"

#include <string>

namespace ov1
{

class COVCalloutSlider : public CSimpleSlider
{
public:
    /// As CSimpleSlider, with a background as large as size. The handle moves along the bottom of the background and
    /// the text above it; where there is no room above, the text is written beside the handle.
    COVCalloutSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                     std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* handle, VSTGUI::CBitmap* background,
                     const VSTGUI::CPoint& offset, std::int32_t style);

    /// Null for no text.
    void setFont(VSTGUI::CFontRef text_font);
    /// UTF-8, written after the number; empty unless set.
    void setUnitString(const std::string& text);
    /// Digits after the point, 1 unless set.
    void setPrecision(std::int32_t digits);

    /// The text that is drawn: the value, not normalised, and the unit.
    void getValueString(std::string& out) const;

    void draw(VSTGUI::CDrawContext* context) override;

private:
    void drawValue(VSTGUI::CDrawContext& context, const VSTGUI::CRect& handle) const;

    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    std::string unit;
    std::int32_t precision = 1;
};

} // namespace ov1

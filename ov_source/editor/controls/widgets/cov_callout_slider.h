// A slider that writes its value above its handle.
#pragma once

#include "editor/controls/widgets/csimple_slider.h"

#include <string>

namespace ov1
{

class COVCalloutSlider : public CSimpleSlider
{
public:
    /// As CSimpleSlider, with a picture as wide and as high as size. The handle sits at the picture's bottom, and the
    /// text in the room above it; where that is too low for text, the text goes beside the handle.
    COVCalloutSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                     std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* handle, VSTGUI::CBitmap* background,
                     const VSTGUI::CPoint& offset, std::int32_t style);

    /// Null for no text.
    void setFont(VSTGUI::CFontRef text_font);
    /// UTF-8; nothing is written after the number where it is empty, as it is unless set.
    void setUnitString(const std::string& text);
    /// Digits after the point, 1 unless set.
    void setPrecision(std::int32_t digits);

    /// The value, not normalised, in the text that is drawn.
    void getValueString(std::string& out) const;

    void draw(VSTGUI::CDrawContext* context) override;

private:
    void drawValue(VSTGUI::CDrawContext& context, const VSTGUI::CRect& handle) const;

    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    std::string unit;
    std::int32_t precision = 1;
};

} // namespace ov1

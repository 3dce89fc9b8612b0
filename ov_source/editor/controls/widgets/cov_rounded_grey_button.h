// A rounded grey button with a title and an icon at either end.
#pragma once

#include "editor/controls/widgets/cov_button.h"

namespace ov1
{

/// Lighter under the mouse, darker while pressed, with a brighter frame while it is on. The title is centred between
/// the icons and truncated where it is too long.
class COVRoundedGreyButton : public COVButton
{
public:
    COVRoundedGreyButton(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                         VSTGUI::UTF8StringPtr title, Style style);

    /// Null for none. A scale of 1 draws the icon at its own size. The doubled t of the left one is the interface's own
    /// spelling.
    void setLefttIcon(VSTGUI::SharedPointer<VSTGUI::CBitmap> icon, float scale);
    void setRightIcon(VSTGUI::SharedPointer<VSTGUI::CBitmap> icon, float scale);
    void setTextColor(const VSTGUI::CColor& color) override;

    void draw(VSTGUI::CDrawContext* context) override;

private:
    struct scaled_icon
    {
        VSTGUI::SharedPointer<VSTGUI::CBitmap> bitmap;
        double scale = 1.0;

        VSTGUI::CPoint size() const;
    };

    void drawIcon(VSTGUI::CDrawContext& context, const scaled_icon& icon, VSTGUI::CCoord left) const;
    void drawTitle(VSTGUI::CDrawContext& context, const VSTGUI::CRect& room) const;

    scaled_icon left_icon;
    scaled_icon right_icon;
};

} // namespace ov1

#include "editor/controls/style/text_measure.h"

#include "vstgui/lib/platform/iplatformfont.h"

namespace ov1
{

line_width measure_of(const VSTGUI::SharedPointer<VSTGUI::CFontDesc>& font)
{
    return [font](std::string_view text)
    {
        // Null for a font that the platform cannot create.
        const auto painter = font->getFontPainter();
        const VSTGUI::UTF8String line{std::string(text)};
        return painter ? painter->getStringWidth(nullptr, line.getPlatformString(), true) : 0.0;
    };
}

} // namespace ov1

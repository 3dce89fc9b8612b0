#include "editor/controls/style/editor_style.h"

#include "editor/controls/geometry/artwork_scale.h"
#include "editor/controls/style/cov_bitmap.h"

#include "vstgui/lib/cgraphicstransform.h"
#include "vstgui/lib/coffscreencontext.h"

namespace ov1
{

using namespace VSTGUI;

namespace
{

/// All fonts of the editor. Where Arial is missing, the platform substitutes another family.
style::font_pointer make_font(CCoord size, std::int32_t face = kNormalFace)
{
    return makeOwned<CFontDesc>("Arial", size, face);
}

} // namespace

style::font_pointer style::title_font() { return make_font(14, kBoldFace); }
style::font_pointer style::panel_label_font() { return make_font(12, kBoldFace | kItalicFace); }
style::font_pointer style::text_font() { return make_font(12); }
style::font_pointer style::small_font() { return make_font(11); }
style::font_pointer style::tiny_font() { return make_font(10); }

SharedPointer<CBitmap> load_artwork(const char* name)
{
    return makeOwned<COVBitmap>(CResourceDescription(name), artwork_scale);
}

SharedPointer<CBitmap> load_first_frame(const char* name)
{
    const auto sheet = load_artwork(name);
    // In points; 0 where the sheet was not found.
    const CPoint size(sheet->getWidth() / 2, sheet->getHeight() / 2);
    const auto drawn = size.x > 0 ? COffscreenContext::create(size, artwork_scale) : nullptr;
    if (!drawn)
        return sheet;
    drawn->beginDraw();
    {
        // Whatever its scale factor, an offscreen context draws in pixels.
        CDrawContext::Transform to_pixels(*drawn, CGraphicsTransform().scale(artwork_scale, artwork_scale));
        sheet->draw(drawn, CRect(CPoint(0, 0), size));
    }
    drawn->endDraw();
    return drawn->getBitmap();
}

} // namespace ov1

// One scope of the panel: title, picture and the labels of its scale.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "editor/scopes/scope_pictures.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/cview.h"

#include <string>

namespace ov1
{

/// Takes no mouse events. pictures outlives this view; title is UTF-8 in the user's language.
class scope_view : public VSTGUI::CView
{
public:
    static constexpr VSTGUI::CCoord title_height = 20;

    scope_view(const VSTGUI::CRect& size, const scope_pictures& pictures, scope_type type, std::string title);

    /// Copies the picture before the next drawing.
    void mark_outdated();

    void draw(VSTGUI::CDrawContext* context) override;

private:
    void copy_picture();
    /// Labels that would touch the one before are left out.
    void draw_labels(VSTGUI::CDrawContext* context, const VSTGUI::CRect& area) const;

    const scope_pictures& pictures;
    const scope_type type;
    const std::string title;
    const style::font_pointer title_font = style::small_font();
    const style::font_pointer label_font = style::tiny_font();
    VSTGUI::SharedPointer<VSTGUI::CBitmap> drawn;
    bool is_outdated = true; ///< the bitmap, against the picture
};

} // namespace ov1

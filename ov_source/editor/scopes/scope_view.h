// One scope of the scopes panel: its title, its picture and the words of its scale.
#pragma once

#include "editor/scopes/scope_pictures.h"

#include "vstgui/lib/cbitmap.h"
#include "vstgui/lib/cview.h"

#include <string>

namespace ov1
{

/// Takes no mouse events. The pictures outlive it.
class scope_view : public VSTGUI::CView
{
public:
    static constexpr VSTGUI::CCoord title_height = 20;

    scope_view(const VSTGUI::CRect& size, const scope_pictures& pictures, scope_type type, std::string title);

    /// What came with the last update is to be shown.
    void show_news();

    void draw(VSTGUI::CDrawContext* context) override;

private:
    void copy_picture();
    void draw_labels(VSTGUI::CDrawContext* context, const VSTGUI::CRect& area) const;

    const scope_pictures& pictures;
    const scope_type type;
    const std::string title;
    VSTGUI::SharedPointer<VSTGUI::CBitmap> drawn;
    bool has_news = true;
};

} // namespace ov1

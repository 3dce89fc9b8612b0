#include "editor/editor_views.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/view_area.h"
#include "editor/panel/panel_layout.h"
#include "editor/scopes/scopes_text.h"

#include "vstgui/lib/controls/cscrollbar.h"

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr std::int32_t preview_scroll_style = 0x43;
// All lengths are in points.
constexpr CCoord scrollbar_width = 12;
constexpr CCoord preview_bar_height = 34;
constexpr CCoord scopes_width = 260;

/// Where the parts of the window lie while the scopes are hidden.
CRect preview_place(double width, double height)
{
    return to_crect(place_preview(static_cast<int>(width), static_cast<int>(height)));
}
CRect toolbar_place(double width) { return to_crect(place_toolbar(static_cast<int>(width))); }
CRect column_place(double width, double height)
{
    return to_crect(place_column(static_cast<int>(width), static_cast<int>(height)));
}
CRect bar_place(CRect preview)
{
    preview.top = preview.bottom - preview_bar_height;
    return preview;
}

void colour_scrollbars(const CScrollView& view)
{
    for (CScrollbar* bar : {view.getHorizontalScrollbar(), view.getVerticalScrollbar()})
        if (bar)
        {
            bar->setFrameColor(kBlackCColor);
            bar->setBackgroundColor(kBlackCColor);
            bar->setScrollerColor(style::scroller);
        }
}

void add_preview(CFrame& frame, editor_views& views, const CRect& place, const editor_views_owner& owner)
{
    views.preview = new COVImagePreview<veridial_ui>(place, owner.component);
    // In the order of drawing: the bar lies over the preview and is added after it.
    views.preview->set_split(owner.memory.split);
    views.preview_scroller = new COVScrollView(place, place, preview_scroll_style);
    views.preview_scroller->setBackgroundColor(kBlackCColor);
    views.preview_scroller->setScrollbarWidth(scrollbar_width);
    colour_scrollbars(*views.preview_scroller);
    views.preview_scroller->addView(views.preview);
    views.preview->set_scroller(views.preview_scroller);
    frame.addView(views.preview_scroller);
    views.bar = new preview_bar(bar_place(place), *views.preview, *views.preview_scroller, owner.language);
    frame.addView(views.bar);
}

void add_scopes(CFrame& frame, editor_views& views, double height, const editor_views_owner& owner)
{
    views.scopes = new scopes_panel(CRect(0, 0, scopes_width, height), owner.language);
    views.scopes->set_choice(scope_choice_from_text(owner.memory.scopes));
    // Also made while hidden, so that the bar's button only has to show it.
    views.scopes->setVisible(owner.memory.shows_scopes);
    frame.addView(views.scopes);
}

void add_toolbar(CFrame& frame, editor_views& views, double width, const editor_views_owner& owner)
{
    views.toolbar = new COVPluginToolbar(toolbar_place(width), &frame, owner.component, owner.opened);
    views.toolbar->getLutExport().set_last_folder(owner.memory.last_folder);
    // Without callbacks the buttons act on the component's own history.
    views.toolbar->show_undo_redo_button(true, {}, {});
    frame.addView(views.toolbar);
}

void add_column(CFrame& frame, editor_views& views, const CRect& place, const editor_views_owner& owner)
{
    views.column = new CScrollView(place, CRect(0, 0, column_width, panel_height),
                                   CScrollView::kHorizontalScrollbar | CScrollView::kVerticalScrollbar);
    views.column->setScrollbarWidth(scrollbar_width);
    views.column->setBackgroundColor(style::background);
    colour_scrollbars(*views.column);
    views.panel = new CViewContainer(CRect(0, 0, panel_width, panel_height));
    views.panel->setBackground(draw_panel_background(&frame));
    views.controls = add_panel_controls(*views.panel, owner.listener, owner.language);
    views.column->addView(views.panel);
    frame.addView(views.column);
}

} // namespace

editor_views make_editor_views(CFrame& frame, double width, double height, const editor_views_owner& owner)
{
    editor_views views;
    add_preview(frame, views, preview_place(width, height), owner);
    add_scopes(frame, views, height, owner);
    add_toolbar(frame, views, width, owner);
    add_column(frame, views, column_place(width, height), owner);
    return views;
}

void lay_out(const editor_views& views, double width, double height, bool shows_scopes)
{
    CRect preview = preview_place(width, height);
    // The scopes take their width from the preview; the right side stays as it is.
    if (shows_scopes)
    {
        place_view(*views.scopes, CRect(0, 0, scopes_width, height));
        preview.left = scopes_width;
    }
    place_view(*views.preview_scroller, preview);
    place_view(*views.bar, bar_place(preview));
    place_view(*views.toolbar, toolbar_place(width));
    place_view(*views.column, column_place(width, height));
}

} // namespace ov1

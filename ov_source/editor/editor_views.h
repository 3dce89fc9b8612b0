// The views of the editor's window: how they are made, and where they lie.
#pragma once

#include "editor/editor_memory.h"
#include "editor/panel/panel_controls.h"
#include "editor/preview/cov_image_preview.h"
#include "editor/preview/preview_bar.h"
#include "editor/scopes/scopes_panel.h"
#include "editor/toolbar/cov_plugin_toolbar.h"

#include "vstgui/lib/cframe.h"
#include "vstgui/lib/cscrollview.h"

#include <memory>

namespace ov1
{

class veridial_ui;

/// Owned by the frame. All are null while there is none.
struct editor_views
{
    COVImagePreview<veridial_ui>* preview = nullptr;
    COVScrollView* preview_scroller = nullptr; ///< holds the preview
    preview_bar* bar = nullptr;                ///< over the preview's lower edge
    scopes_panel* scopes = nullptr;            ///< left of the preview
    COVPluginToolbar* toolbar = nullptr;
    VSTGUI::CScrollView* column = nullptr;   ///< beneath the toolbar; holds the panel
    VSTGUI::CViewContainer* panel = nullptr; ///< holds the controls
    panel_controls controls;
};

/// What the views are made for.
struct editor_views_owner
{
    VSTGUI::IControlListener& listener; ///< of the panel's controls; outlives the views
    std::weak_ptr<icomponent_v1> component;
    std::weak_ptr<window> opened;
    language_id language;
    const editor_memory& memory; ///< what the views begin with
};

/// Makes the views and adds them to the frame, whose size in points is given.
editor_views make_editor_views(VSTGUI::CFrame& frame, double width, double height, const editor_views_owner& owner);

/// Places the views in a frame of that size in points.
void lay_out(const editor_views& views, double width, double height, bool shows_scopes);

} // namespace ov1

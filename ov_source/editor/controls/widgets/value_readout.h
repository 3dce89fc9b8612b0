// A bubble with a control's values beside its handle, visible during a change.
#pragma once

#include "editor/controls/style/editor_style.h"
#include "vstgui/vstgui.h"

#include <string>

namespace ov1
{

/// The position of a read-out: centred above the handle; below it, or moved sideways, where it would otherwise leave
/// the area. All in the same coordinates.
VSTGUI::CRect readout_place(const VSTGUI::CPoint& handle, const VSTGUI::CPoint& size, const VSTGUI::CRect& area);

/// One bubble above everything else in the frame; it takes no mouse events. The frame outlives this object; for the
/// frame's thread.
class value_readout
{
public:
    explicit value_readout(VSTGUI::CFrame& frame);
    ~value_readout();
    value_readout(const value_readout&) = delete;
    value_readout& operator=(const value_readout&) = delete;

    /// Shows the text beside a handle, given in the frame's points; replaces what was shown.
    void show(const std::string& text, const VSTGUI::CPoint& handle);
    void hide();

    /// The visible text and its place; both empty while nothing is shown.
    const std::string& get_text() const { return text; }
    VSTGUI::CRect get_place() const;

private:
    VSTGUI::CFrame& frame;
    const style::font_pointer font = style::text_font();
    VSTGUI::SharedPointer<VSTGUI::CView> bubble;
    std::string text;
};

} // namespace ov1

// The values of a control beside its handle, for as long as they are being changed.
#pragma once

#include "editor/controls/style/text_measure.h"
#include "vstgui/vstgui.h"

#include <string>

namespace ov1
{

/// Where a read-out of a size goes: centred above the handle, below it where there is no room above, and sideways as
/// far in as the area asks.
VSTGUI::CRect readout_place(const VSTGUI::CPoint& handle, const VSTGUI::CPoint& size, const VSTGUI::CRect& area);

/// One bubble above everything else in the frame; it takes no mouse events. Made and destroyed while the frame lives,
/// on its thread.
class value_readout
{
public:
    explicit value_readout(VSTGUI::CFrame& frame);
    ~value_readout();
    value_readout(const value_readout&) = delete;
    value_readout& operator=(const value_readout&) = delete;

    /// Handle in the frame's points.
    void show(const std::string& text, const VSTGUI::CPoint& handle);
    void hide();

    /// What is shown, and where; empty for nothing.
    const std::string& get_text() const { return text; }
    VSTGUI::CRect get_place() const;

private:
    VSTGUI::CFrame& frame;
    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    VSTGUI::SharedPointer<VSTGUI::CView> bubble;
    std::string text;
};

} // namespace ov1

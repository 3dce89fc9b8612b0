// Tooltips drawn within the frame, where the desktop offers none.
#pragma once

#include "editor/controls/style/text_measure.h"
#include "vstgui/vstgui.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ov1
{

/// Where a tooltip of a size goes: below the mouse and to its right, or above it, or further left, so that it lies
/// within the area as far as it fits at all.
VSTGUI::CRect tooltip_place(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& size, const VSTGUI::CRect& area);

/// Shows the tooltip text of the view under the mouse when the mouse has rested for the delay; hides it when the mouse
/// moves, presses or leaves, or the view goes. It takes no mouse events. Made and destroyed while the frame lives, on
/// its thread.
class tooltip_layer : public VSTGUI::IMouseObserver
{
public:
    explicit tooltip_layer(VSTGUI::CFrame& frame, std::uint32_t delay_ms = 4000);
    ~tooltip_layer() override;
    tooltip_layer(const tooltip_layer&) = delete;
    tooltip_layer& operator=(const tooltip_layer&) = delete;

    /// To be called several times a second, with a clock that only grows.
    void idle(std::uint64_t now_ms);

    /// The view of the text that is shown; null for none.
    VSTGUI::CView* shown() const { return tip; }

    void onMouseEntered(VSTGUI::CView* view, VSTGUI::CFrame* frame) override;
    void onMouseExited(VSTGUI::CView* view, VSTGUI::CFrame* frame) override;
    void onMouseEvent(VSTGUI::MouseEvent& event, VSTGUI::CFrame* frame) override;

private:
    void show();
    void hide();

    VSTGUI::CFrame& frame;
    std::uint32_t delay_ms;
    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
    VSTGUI::SharedPointer<VSTGUI::CView> owner; // of the text: the view under the mouse
    VSTGUI::SharedPointer<VSTGUI::CView> tip;
    VSTGUI::CPoint mouse;
    std::optional<std::uint64_t> rests_since;
    bool may_show = false;
};

} // namespace ov1

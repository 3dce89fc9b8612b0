// Tooltips drawn within the frame, where the desktop offers none.
#pragma once

#include "editor/controls/style/tip_box.h"
#include "vstgui/vstgui.h"

#include <cstdint>
#include <optional>
#include <string>

namespace ov1
{

/// The position of a tooltip: below the mouse and to its right; above the mouse, or further left, where it would
/// otherwise leave the area. All in the same coordinates.
VSTGUI::CRect tooltip_place(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& size, const VSTGUI::CRect& area);

/// Shows the tooltip text of the view under the mouse after the mouse has rested for the delay; hides it when the mouse
/// moves, is pressed or leaves, or the view is removed. The tooltip itself takes no mouse events. The frame outlives
/// this object; for the frame's thread.
class tooltip_layer : public VSTGUI::IMouseObserver
{
public:
    explicit tooltip_layer(VSTGUI::CFrame& frame, std::uint32_t delay_ms = 4000);
    ~tooltip_layer() override;
    tooltip_layer(const tooltip_layer&) = delete;
    tooltip_layer& operator=(const tooltip_layer&) = delete;

    /// To be called several times a second, with a clock that never goes back.
    void idle(std::uint64_t now_ms);

    /// The visible tooltip; null while there is none.
    VSTGUI::CView* shown() const { return tip; }

    void onMouseEntered(VSTGUI::CView* view, VSTGUI::CFrame* frame) override;
    void onMouseExited(VSTGUI::CView* view, VSTGUI::CFrame* frame) override;
    void onMouseEvent(VSTGUI::MouseEvent& event, VSTGUI::CFrame* frame) override;

private:
    void show();
    void hide();

    VSTGUI::CFrame& frame;
    std::uint32_t delay_ms;
    const style::font_pointer font = style::text_font();
    VSTGUI::SharedPointer<VSTGUI::CView> owner; // the view under the mouse, whose text is shown
    VSTGUI::SharedPointer<tip_view> tip;
    VSTGUI::CPoint mouse;
    std::optional<std::uint64_t> rests_since;
    bool may_show = false;
};

} // namespace ov1

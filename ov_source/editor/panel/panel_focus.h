// The keyboard focus among the panel's controls, and the ring around the control that has it.
#pragma once

#include "editor/panel/panel_stops.h"

#include <span>

namespace ov1
{

/// Keeps no focus of its own: the toolkit's counts, which a press on a control moves too. The ring is visible from the
/// first key that asks for it until the next press. Frame, column, panel and stops outlive this object.
class panel_focus
{
public:
    /// column is the view that scrolls the panel.
    panel_focus(VSTGUI::CFrame& frame, VSTGUI::CScrollView& column, VSTGUI::CViewContainer& panel,
                std::span<const panel_stop> stops);

    /// The control that has the focus; null where none of the panel has.
    const panel_stop* current() const;
    /// Moves the focus to the next control or the previous one; the last is followed by the first.
    void step(bool back);
    void give_to(const panel_stop& stop);

    /// Draws the ring around the current control, if there is one, and scrolls to it.
    void show_ring();
    void hide_ring();
    bool is_ring_shown() const { return ring->isVisible(); }

private:
    VSTGUI::CFrame& frame;
    VSTGUI::CScrollView& column;
    const std::span<const panel_stop> stops;
    VSTGUI::CView* ring; ///< owned by the panel
};

} // namespace ov1

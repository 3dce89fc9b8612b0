// The keyboard's way through the panel's controls, with a ring around the one that has it.
#pragma once

#include "editor/panel/panel_stops.h"

namespace ov1
{

/// The toolkit's focus is the only truth: a press on a control moves it too. The ring is drawn once a key has asked for
/// it, until the next press. Frame, column and panel outlive this object.
class panel_focus
{
public:
    /// The column scrolls the panel.
    panel_focus(VSTGUI::CFrame& frame, VSTGUI::CScrollView& column, VSTGUI::CViewContainer& panel,
                std::vector<panel_stop> stops);

    /// The control that has the keyboard; null where none of the panel has.
    const panel_stop* current() const;
    /// Gives the keyboard to the next control, or the one before, around the ends.
    void step(bool back);
    void give_to(const panel_stop& stop);

    /// Draws the ring around the current control, if there is one, and scrolls to it.
    void show_ring();
    void hide_ring();
    bool is_ring_shown() const { return ring->isVisible(); }

private:
    VSTGUI::CFrame& frame;
    VSTGUI::CScrollView& column;
    const std::vector<panel_stop> stops;
    VSTGUI::CView* ring; ///< owned by the panel
};

} // namespace ov1

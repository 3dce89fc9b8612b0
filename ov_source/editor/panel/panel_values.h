// The values of the panel's controls as text: in a bubble during a drag, otherwise in lines that can be typed over.
#pragma once

#include "editor/controls/widgets/value_line.h"
#include "editor/controls/widgets/value_readout.h"
#include "editor/panel/panel_stops.h"
#include "shared/language_id.h"

#include <functional>
#include <optional>
#include <span>

namespace ov1
{

/// Lines are shown for one panel at a time: a pad's above its label, an arc's at its lower end; a slider writes its
/// value itself, its line only takes the click. Frame, panel and stops outlive this object.
class panel_values
{
public:
    /// Receives values that were typed and are within bounds, to be set as one undo step.
    using value_sink = std::function<void(const panel_stop& stop, const std::vector<float>& values)>;

    panel_values(VSTGUI::CFrame& frame, VSTGUI::CViewContainer& panel, std::span<const panel_stop> stops,
                 language_id language, value_sink on_typed);

    /// Shows the lines of the panel at a point of the frame, and hides them where there is no point or no panel. Does
    /// nothing while a field is open.
    void point_at(const std::optional<VSTGUI::CPoint>& in_frame);
    /// Shows the lines of this panel as well, wherever the mouse is.
    void keep_shown(std::optional<panel_slot> slot);

    /// Shows the value beside the handle of a pad or an arc. A slider needs no bubble.
    void show_bubble(const panel_stop& stop);
    void hide_bubble();

    /// Updates the visible lines. To be called several times a second with a clock that never goes back.
    void idle(std::uint64_t now_ms);

    /// Opens a text field over the stop's line.
    void type_over(const panel_stop& stop);
    /// Whether a field is open.
    bool is_typing() const { return has_open_field; }

    const value_readout& get_bubble() const { return bubble; }

private:
    /// In points of the panel: a wheel with its arcs, sliders and lines; and a single line.
    VSTGUI::CRect panel_area(panel_slot slot) const;
    VSTGUI::CRect line_place(const panel_stop& stop) const;
    void show_lines();
    void take_typed(const panel_stop& stop, const std::optional<std::string>& text);
    void show_message(const panel_stop& stop, const std::string& literal);

    VSTGUI::CViewContainer& panel;
    const std::span<const panel_stop> stops;
    const language_id language;
    const value_sink on_typed;
    std::vector<value_line*> lines; ///< by stop; owned by the panel
    value_readout bubble;
    std::optional<panel_slot> pointed_at; ///< by the mouse
    std::optional<panel_slot> kept;       ///< by keep_shown
    bool has_open_field = false;
    bool is_message = false; ///< the bubble shows a message, not a value
    std::optional<std::uint64_t> message_since;
};

} // namespace ov1

// The values of the panel's controls in figures: a bubble during a drag, lines that can be typed over at rest.
#pragma once

#include "editor/controls/widgets/value_line.h"
#include "editor/controls/widgets/value_readout.h"
#include "editor/panel/panel_stops.h"
#include "shared/language_id.h"

#include <functional>
#include <memory>
#include <optional>

namespace ov1
{

/// Lines are shown for one panel at a time: a pad's above its label, an arc's at its foot; a slider's is its own
/// callout. The frame and the panel outlive this object.
class panel_values
{
public:
    using component_source = std::function<std::shared_ptr<icomponent_v1>()>;
    /// Takes values that were typed and can be taken, as one step for undo.
    using value_sink = std::function<void(const panel_stop& stop, const std::vector<float>& values)>;

    panel_values(VSTGUI::CFrame& frame, VSTGUI::CViewContainer& panel, std::vector<panel_stop> stops,
                 language_id language, component_source component, value_sink on_typed);

    /// Shows the lines of the panel that a point of the frame lies in, of a point that is nowhere none. While one is
    /// typed into, all stay.
    void point_at(const std::optional<VSTGUI::CPoint>& in_frame);
    /// Shows this panel's lines too.
    void keep_shown(std::optional<panel_slot> slot);

    /// The bubble beside the handle of a pad or an arc.
    void show_bubble(const panel_stop& stop);
    void hide_bubble();

    /// Writes the present values; to be called several times a second with a clock that only grows.
    void idle(std::uint64_t now_ms);

    /// Opens a field over the stop's line.
    void type_over(const panel_stop& stop);
    /// Whether a field is open.
    bool is_typing() const { return has_open_field; }

    const value_readout& get_bubble() const { return bubble; }
    /// The stop's line, for tests.
    const value_line& get_line(std::size_t stop) const { return *lines[stop]; }

private:
    VSTGUI::CRect panel_area(panel_slot slot) const;
    VSTGUI::CRect line_place(const panel_stop& stop) const;
    VSTGUI::CPoint handle_of(const panel_stop& stop) const;
    void show_lines();
    void take_typed(const panel_stop& stop, const std::optional<std::string>& text);
    void show_message(const panel_stop& stop, const std::string& literal);

    VSTGUI::CViewContainer& panel;
    const std::vector<panel_stop> stops;
    const language_id language;
    const component_source component;
    const value_sink on_typed;
    std::vector<value_line*> lines; ///< by stop, owned by the panel
    value_readout bubble;
    std::optional<panel_slot> pointed_at;
    std::optional<panel_slot> kept;
    bool has_open_field = false;
    bool is_message = false; ///< what the bubble shows
    std::optional<std::uint64_t> message_since;
};

} // namespace ov1

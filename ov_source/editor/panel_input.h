// Mouse and keys on the control panel, except dragging: hovering, typed values, keyboard focus, arrow keys, resets.
#pragma once

#include "editor/editor_keys.h"
#include "editor/panel/panel_focus.h"
#include "editor/panel/panel_values.h"

#include "vstgui/lib/cframe.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace ov1
{

/// What the panel's input needs of its editor.
struct panel_input_links
{
    std::function<std::shared_ptr<icomponent_v1>()> component;
    std::function<void()> begin_gesture; ///< with end_gesture: the brackets of one undo step
    std::function<void()> end_gesture;
    std::function<void(key_action)> on_action; ///< gets all actions that are not the panel's own
};

/// Watches the frame during its lifetime; frame, column, panel and stops outlive it.
class panel_input : public VSTGUI::IMouseObserver
{
public:
    panel_input(VSTGUI::CFrame& frame, VSTGUI::CScrollView& column, VSTGUI::CViewContainer& panel,
                std::span<const panel_stop> stops, language_id language, panel_input_links links);
    ~panel_input() override;
    panel_input(const panel_input&) = delete;
    panel_input& operator=(const panel_input&) = delete;

    // To be called for every edit of a control. begins returns true if the edit continues the one before: the second
    // click of a double click undoes the first one's change, and both are one undo step.
    [[nodiscard]] bool begins(const VSTGUI::CControl& control);
    void changed(const VSTGUI::CControl& control);
    void ends(const VSTGUI::CControl& control);

    /// To be called several times a second with a monotonic clock. Presses of arrow keys with less than a second
    /// between them are one undo step.
    void idle(std::uint64_t now_ms);

    void onMouseEntered(VSTGUI::CView*, VSTGUI::CFrame*) override {}
    void onMouseExited(VSTGUI::CView*, VSTGUI::CFrame*) override {}
    /// A press ends what the keys have begun; a movement without a button shows the values under the pointer.
    void onMouseEvent(VSTGUI::MouseEvent& event, VSTGUI::CFrame* frame) override;

    panel_values& get_values() { return values; }
    panel_focus& get_focus() { return focus; }

private:
    /// Carries out an action of the panel or passes it on. False, so that the key is not consumed, during a drag, while
    /// a value is typed, and for a nudge or reset without a current control.
    bool act(key_action action, const VSTGUI::KeyboardEvent& event);
    /// One arrow key: opens the undo step at the first one. False without a current control.
    bool nudge_current(const VSTGUI::CPoint& direction, bool finely);
    /// Its default as one undo step, or none if it is there already. False without a current control.
    bool reset_current();
    /// change is called once, between begin_gesture and end_gesture.
    void change_in_one_step(const std::function<void()>& change);
    /// Closes the undo step of the arrow keys, if one is open.
    void end_nudges();
    /// Draws the focus ring and shows the values of the control's slot.
    void show_current();
    /// 0 without a component.
    int undo_position() const;

    VSTGUI::CFrame& frame;
    VSTGUI::CScrollView& column;
    const panel_input_links links;
    const std::span<const panel_stop> stops;
    panel_values values;
    panel_focus focus;
    editor_keys keys;

    const panel_stop* nudged = nullptr;     ///< the control whose undo step is open
    std::optional<std::uint64_t> nudged_at; ///< time of the last one, known at the next idle
    bool is_second_click = false;
    const VSTGUI::CControl* edited_last = nullptr; ///< by the last press, unless a press elsewhere followed
    int position_after = 0;                        ///< undo position after that edit
};

} // namespace ov1

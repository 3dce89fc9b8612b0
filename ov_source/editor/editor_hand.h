// What a hand does on the panel beside dragging: it points, types values, walks and nudges with the keys, clicks twice.
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

/// What the hand asks of its editor.
struct hand_links
{
    std::function<std::shared_ptr<icomponent_v1>()> component;
    std::function<void()> begin_gesture; ///< brackets of one step for undo
    std::function<void()> end_gesture;
    std::function<void(key_action)> act; ///< all actions that are not the panel's
};

/// Watches the frame for as long as it lives; frame, column, panel and stops outlive it.
class editor_hand : public VSTGUI::IMouseObserver
{
public:
    editor_hand(VSTGUI::CFrame& frame, VSTGUI::CScrollView& column, VSTGUI::CViewContainer& panel,
                std::span<const panel_stop> stops, language_id language, hand_links links);
    ~editor_hand() override;
    editor_hand(const editor_hand&) = delete;
    editor_hand& operator=(const editor_hand&) = delete;

    // To be told of every control's edits. begins says whether the edit goes on with the one before: the second click
    // of a double click takes back what the first one did, in the same step for undo.
    [[nodiscard]] bool begins(const VSTGUI::CControl& control);
    void changed(const VSTGUI::CControl& control);
    void ends(const VSTGUI::CControl& control);

    /// To be called several times a second, with a clock that only grows. Nudges without a pause of a second between
    /// them are one step for undo.
    void idle(std::uint64_t now_ms);

    void onMouseEntered(VSTGUI::CView*, VSTGUI::CFrame*) override {}
    void onMouseExited(VSTGUI::CView*, VSTGUI::CFrame*) override {}
    void onMouseEvent(VSTGUI::MouseEvent& event, VSTGUI::CFrame* frame) override;

    panel_values& getValues() { return values; }
    panel_focus& getFocus() { return focus; }

private:
    bool act(key_action action, const VSTGUI::KeyboardEvent& event);
    bool nudge_current(const VSTGUI::CPoint& direction, bool finely);
    bool reset_current();
    void change_in_one_step(const std::function<void()>& change);
    void end_nudges();
    void show_current();
    int undo_position() const;

    VSTGUI::CFrame& frame;
    VSTGUI::CScrollView& column;
    const hand_links links;
    const std::span<const panel_stop> stops;
    panel_values values;
    panel_focus focus;
    editor_keys keys;

    const panel_stop* nudged = nullptr; ///< whose run of nudges is open
    std::optional<std::uint64_t> nudged_at;
    bool is_second_click = false;
    const VSTGUI::CControl* edited_last = nullptr; ///< since the last press that was none
    int position_after = 0;
};

} // namespace ov1

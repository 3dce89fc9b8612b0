// The toolbar: presets, LUT export and clipboard, undo and redo, reset, bypass, manual, and closing.
#pragma once

#include "editor/controls/widgets/cov_button.h"
#include "editor/controls/widgets/cov_rounded_grey_button.h"
#include "editor/toolbar/clipboard_actions.h"
#include "editor/toolbar/history_actions.h"
#include "editor/toolbar/lut_export_action.h"
#include "editor/toolbar/preset_actions.h"
#include "framework/parameters/iparameter_change_listener_v1.h"
#include "framework/window.h"

#include "vstgui/lib/cviewcontainer.h"

#include <array>
#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Shows the buttons and the current preset's name, with a star while the grade is no longer that preset's, and
/// forwards each press to its action. Every action that changes the grade is one undo step. The frame outlives it.
class COVPluginToolbar : public VSTGUI::CViewContainer,
                         public VSTGUI::IControlListener,
                         public iparameter_change_listener_v1
{
public:
    /// 494 x 64 points.
    COVPluginToolbar(const VSTGUI::CRect& size, VSTGUI::CFrame* frame, std::weak_ptr<icomponent_v1> component,
                     std::weak_ptr<window> window);

    /// Empty callbacks leave undo and redo to the component's own history.
    void show_undo_redo_button(bool show, std::function<void()> undo, std::function<void()> redo);
    /// What the preset button does; nothing without one.
    void setPresetChooser(std::function<void()> chooser) { preset_chooser = std::move(chooser); }
    /// How the editor is closed when its changes are discarded.
    void setDiscardAction(std::function<void()> action) { discard = std::move(action); }
    void setWindow(std::weak_ptr<window> window) { opened = std::move(window); }

    // What the buttons do, for keys and for the other parts of the editor. Without a component they do nothing. They
    // live as long as the toolbar.
    preset_actions& getPresets() { return presets; }
    history_actions& getHistory() { return history; }
    lut_export_action& getLutExport() { return lut_export; }
    const clipboard_actions& getClipboard() const { return clipboard; }

    /// Every value to its default; no preset is current afterwards.
    void resetGrade();
    void toggleBypass();
    /// In the user's web browser.
    void openManual();
    /// Closes the window; the session then closes the view. Discarding runs the discard action instead.
    void closeEditor(bool discard_changes);

    /// Shows what can be undone and deleted, and whether the effect is bypassed.
    void idle();
    /// Updates the star. Reads this one parameter only: it is called at every event of a drag.
    void parameter_changed(std::shared_ptr<iparameter_v1> parameter, bool edit) override;

    /// A press of a button, reported by the toolkit.
    void valueChanged(VSTGUI::CControl* control) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;
    /// Keeps whether Shift is held, for the close button.
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

private:
    /// The buttons beside the preset button, from left to right.
    enum class tool
    {
        save,
        remove,
        exporting,
        undo,
        redo,
        history,
        reset,
        bypass,
        manual,
        close,
        count
    };

    /// Never null after the constructor.
    COVButton& button(tool which) const { return *buttons[static_cast<std::size_t>(which)]; }
    void addPresetButton();
    void addButtons();
    /// Carries out a button's action. Everything that waits for an answer returns at once.
    void run(tool pressed);
    /// Opens beneath the export button: LUT files, and the clipboard as a second group.
    void showExportMenu();
    /// "Presets" while none is current.
    void showPresetName();

    const std::weak_ptr<icomponent_v1> component;
    /// The window that closeEditor closes; it may be unset.
    std::weak_ptr<window> opened;
    // The actions keep references to the dialogs and the history, which are declared before them for that reason.
    const editor_dialogs dialogs;
    history_actions history;
    preset_actions presets;
    lut_export_action lut_export;
    clipboard_actions clipboard;
    // Both may be empty.
    std::function<void()> discard;
    std::function<void()> preset_chooser;
    bool shift_is_held = false; ///< at the last press

    // The container owns the buttons.
    COVRoundedGreyButton* preset_button = nullptr;
    std::array<COVButton*, static_cast<std::size_t>(tool::count)> buttons{};
};

} // namespace ov1

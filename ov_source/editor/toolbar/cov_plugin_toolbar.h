// The toolbar: presets, LUT export, undo and redo, reset, bypass, manual, and the ways out.
#pragma once

#include "editor/controls/widgets/cov_button.h"
#include "editor/controls/widgets/cov_rounded_grey_button.h"
#include "editor/toolbar/preset_menu.h"
#include "editor/toolbar/step_names.h"
#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_change_listener_v1.h"
#include "framework/window.h"
#include "shared/language_id.h"

#include "vstgui/lib/cviewcontainer.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace ov1
{

/// Every action that changes the grade is one undo step. The frame outlives the toolbar.
class COVPluginToolbar : public VSTGUI::CViewContainer,
                         public VSTGUI::IControlListener,
                         public iparameter_change_listener_v1
{
public:
    /// 494 x 64 points.
    COVPluginToolbar(const VSTGUI::CRect& size, VSTGUI::CFrame* frame, std::weak_ptr<icomponent_v1> component,
                     std::weak_ptr<window> window);

    /// Without callbacks the buttons step on the component's own history.
    void show_undo_redo_button(bool show, std::function<void()> undo, std::function<void()> redo);
    /// What the preset button opens; without one it does nothing.
    void setPresetChooser(std::function<void()> chooser) { preset_chooser = std::move(chooser); }
    void setDiscardAction(std::function<void()> action) { discard = std::move(action); }
    void setWindow(std::weak_ptr<window> window) { opened = std::move(window); }

    /// Where the last table was written, and where the next one is offered to go; empty for the home folder.
    const std::string& getLastFolder() const { return last_folder; }
    void setLastFolder(std::string folder) { last_folder = std::move(folder); }

    /// Names the step that was just made, in the history; a localised literal.
    void labelStep(const char* name);
    /// What the history button offers; see list_history.
    std::vector<history_step> listHistory() const;

    /// Shows what can be undone and whether the effect is bypassed.
    void idle();
    void parameter_changed(std::shared_ptr<iparameter_v1> parameter, bool edit) override;

    void valueChanged(VSTGUI::CControl* control) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

    /// What the buttons do; each asks what it has to ask.
    void choosePreset();
    void showHistory();
    void copyGrade();
    void pasteGrade();
    void savePreset();
    void deletePreset();
    void exportLut();
    void undo();
    void redo();
    void resetGrade();
    void toggleBypass();
    void openManual();
    void closeEditor(bool discard_changes);

    /// All presets and the files that hold them, for choosers. Says so where they cannot be listed.
    void listPresets(std::vector<preset_choice>& entries, std::vector<std::string>& files);
    /// Replaces the grade, or says why not.
    void loadPreset(const preset_choice& entry);
    /// Asks for a file and writes the table.
    void exportTable(unsigned int points, bool as_3dl);

    /// The preset that was loaded or saved last, for tests; its name bears a star while the grade is another.
    const std::optional<preset_choice>& getCurrentPreset() const { return current; }

private:
    COVButton* add_button(const char* artwork, const char* tooltip, VSTGUI::CTextButton::Style style, int group);
    void set_current(const preset_choice& preset);
    void show_preset_name();
    void save_as(const std::string& name, bool overwrite);
    void write_table(const std::string& path, unsigned int points, bool as_3dl);
    void change_grade(const std::function<void(icomponent_v1&)>& change);
    std::string translated(const char* literal) const;

    VSTGUI::CFrame* const owner_frame;
    const std::weak_ptr<icomponent_v1> component;
    std::weak_ptr<window> opened;
    const language_id language;
    preset_manager presets;
    std::optional<preset_choice> current;
    std::vector<param_cell> current_look; ///< all values but the bypass
    bool preset_is_changed = false;
    step_labels labels;
    std::string last_folder;
    std::function<void()> discard;
    std::function<void()> preset_chooser;
    std::function<void()> undo_callback;
    std::function<void()> redo_callback;
    bool shift_is_held = false;
    VSTGUI::CCoord next_left;
    int last_group = 0;

    COVRoundedGreyButton* preset_button = nullptr;
    COVButton* save_button = nullptr;
    COVButton* delete_button = nullptr;
    COVButton* export_button = nullptr;
    COVButton* undo_button = nullptr;
    COVButton* redo_button = nullptr;
    COVButton* history_button = nullptr;
    COVButton* reset_button = nullptr;
    COVButton* bypass_button = nullptr;
    COVButton* manual_button = nullptr;
    COVButton* close_button = nullptr;
};

} // namespace ov1

// The toolbar: presets, LUT export, undo and redo, reset, bypass, manual, and the ways out.
#pragma once

#include "editor/cov_button.h"
#include "editor/cov_rounded_grey_button.h"
#include "editor/preset_menu.h"
#include "framework/icomponent_v1.h"
#include "framework/iparameter_change_listener_v1.h"
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
    void setDiscardAction(std::function<void()> action) { discard = std::move(action); }
    void setWindow(std::weak_ptr<window> window) { opened = std::move(window); }

    /// Shows what can be undone and whether the effect is bypassed.
    void idle();
    void parameter_changed(std::shared_ptr<iparameter_v1> parameter, bool edit) override;

    void valueChanged(VSTGUI::CControl* control) override;
    void drawBackgroundRect(VSTGUI::CDrawContext* context, const VSTGUI::CRect& update) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;

    /// What the buttons do; each asks what it has to ask.
    void choosePreset();
    void savePreset();
    void deletePreset();
    void exportLut();
    void undo();
    void redo();
    void resetGrade();
    void toggleBypass();
    void openManual();
    void closeEditor(bool discard_changes);

    /// The preset that was loaded or saved last, for tests.
    const std::optional<preset_entry>& getCurrentPreset() const { return current; }

private:
    COVButton* add_button(const char* artwork, const char* tooltip, VSTGUI::CTextButton::Style style, int group);
    void show_preset_name();
    void load(const preset_entry& entry);
    void save_as(const std::string& name, bool overwrite);
    void export_table(unsigned int points, bool as_3dl);
    void write_table(const std::string& path, unsigned int points, bool as_3dl);
    void change_grade(const std::function<void(icomponent_v1&)>& change);
    std::string translated(const char* literal) const;

    VSTGUI::CFrame* const owner_frame;
    const std::weak_ptr<icomponent_v1> component;
    std::weak_ptr<window> opened;
    const language_id language;
    preset_manager presets;
    std::optional<preset_entry> current;
    bool preset_is_changed = false;
    std::function<void()> discard;
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
    COVButton* reset_button = nullptr;
    COVButton* bypass_button = nullptr;
    COVButton* manual_button = nullptr;
    COVButton* close_button = nullptr;
};

} // namespace ov1

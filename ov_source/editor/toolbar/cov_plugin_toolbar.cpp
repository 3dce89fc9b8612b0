#include "editor/toolbar/cov_plugin_toolbar.h"

#include "editor/controls/style/editor_style.h"
#include "editor/toolbar/editor_dialogs.h"
#include "editor/toolbar/grade_clipboard.h"
#include "editor/toolbar/popup_menu.h"
#include "effect/lut/lut_argb_variable.h"
#include "framework/ihost_v1.h"
#include "framework/lut_exporter.h"
#include "framework/parameters/iparameter_v1.h"
#include "platform/iutils.h"
#include "presets/preset_messages.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/events.h"

#include <cstdlib>
#include <filesystem>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord margin = 12;
constexpr CCoord preset_width = 156;
constexpr CCoord preset_height = 28;
constexpr CCoord button_size = 28;
constexpr CCoord gap = 1;
constexpr CCoord group_gap = 9;
constexpr unsigned int table_points = 17;
constexpr unsigned int fine_table_points = 32;
constexpr const char* no_preset = "{en:Presets}{de:Presets}";

language_id language_of(const std::weak_ptr<icomponent_v1>& component)
{
    const auto alive = component.lock();
    const auto host = alive ? alive->get_host() : nullptr;
    return host ? host->get_language() : language_id{};
}

/// Where a table is written unless the user says otherwise: beside the last one, under the preset's name.
std::string offered_path(const std::string& last_folder, const std::optional<preset_choice>& preset, bool as_3dl)
{
    const std::string name = preset ? preset->name : "Veridial";
    const char* const home = std::getenv("HOME");
    const std::filesystem::path folder = !last_folder.empty() ? last_folder : home ? home : "/";
    return (folder / (name + (as_3dl ? ".3dl" : ".cube"))).string();
}

std::vector<param_cell> look_of(icomponent_v1& component)
{
    std::vector<param_cell> values;
    for (int i = 0; i < component.get_parameter_count(); ++i)
        if (const auto parameter = component.get_parameter(i); !(parameter->get_flags() & parameter_is_bypass))
            values.push_back(parameter->get_param_value().value);
    return values;
}

} // namespace

COVPluginToolbar::COVPluginToolbar(const CRect& size, CFrame* frame, std::weak_ptr<icomponent_v1> component,
                                   std::weak_ptr<window> window)
    : CViewContainer(size)
    , owner_frame(frame)
    , component(component)
    , opened(std::move(window))
    , language(language_of(component))
    , presets(component)
    , next_left(margin)
{
    const CCoord top = (size.getHeight() - preset_height) / 2;
    preset_button = new COVRoundedGreyButton(CRect(CPoint(margin, top), CPoint(preset_width, preset_height)), this, -1,
                                             nullptr, CTextButton::kKickStyle);
    preset_button->setFont(style::text_font());
    preset_button->setTextColor(style::text_colour);
    preset_button->setRightIcon(load_first_frame("toolbar_presets.png"), 1);
    preset_button->setTooltipText(translated("{en:Choose a preset}{de:Preset wählen}").c_str());
    addView(preset_button);
    next_left += preset_width + group_gap;

    constexpr auto kick = CTextButton::kKickStyle;
    save_button = add_button("toolbar_save.png", "{en:Save as a preset}{de:Als Preset sichern}", kick, 0);
    delete_button = add_button("toolbar_delete.png", "{en:Delete this preset}{de:Dieses Preset löschen}", kick, 0);
    export_button = add_button("toolbar_export.png", "{en:Export as a LUT}{de:Als LUT exportieren}", kick, 0);
    undo_button = add_button("toolbar_undo.png", "{en:Undo}{de:Rückgängig}", kick, 1);
    redo_button = add_button("toolbar_redo.png", "{en:Redo}{de:Wiederholen}", kick, 1);
    history_button = add_button("toolbar_history.png", "{en:History}{de:Verlauf}", kick, 1);
    reset_button = add_button("toolbar_reset.png", "{en:Reset everything}{de:Alles zurücksetzen}", kick, 1);
    bypass_button =
        add_button("toolbar_bypass.png", "{en:Bypass the effect}{de:Effekt umgehen}", CTextButton::kOnOffStyle, 2);
    manual_button = add_button("toolbar_manual.png", "{en:Open the manual}{de:Handbuch öffnen}", kick, 2);
    close_button = add_button("toolbar_close.png",
                              "{en:Close; with Shift, discard the changes}"
                              "{de:Schließen; mit Umschalt die Änderungen verwerfen}",
                              kick, 2);
    show_preset_name();
    idle();
}

COVButton* COVPluginToolbar::add_button(const char* artwork, const char* tooltip, CTextButton::Style style, int group)
{
    next_left += group == std::exchange(last_group, group) ? 0 : group_gap;
    const CCoord top = (getViewSize().getHeight() - button_size) / 2;
    auto* const button =
        new COVButton(CRect(CPoint(next_left, top), CPoint(button_size, button_size)), this, -1, style, nullptr);
    button->setIcon(load_artwork(artwork));
    button->setTooltipText(translated(tooltip).c_str());
    addView(button);
    next_left += button_size + gap;
    return button;
}

std::string COVPluginToolbar::translated(const char* literal) const { return iutils::translate(language, literal); }

void COVPluginToolbar::show_undo_redo_button(bool show, std::function<void()> undo, std::function<void()> redo)
{
    undo_callback = std::move(undo);
    redo_callback = std::move(redo);
    undo_button->setVisible(show);
    redo_button->setVisible(show);
}

void COVPluginToolbar::idle()
{
    const auto alive = component.lock();
    if (!alive)
        return;
    const auto enable = [](COVButton& button, bool on)
    {
        if (button.getMouseEnabled() == on)
            return;
        button.setMouseEnabled(on);
        button.invalid();
    };
    const undo_range range = alive->get_undo_range();
    enable(*undo_button, undo_callback || range.can_undo());
    enable(*redo_button, redo_callback || range.can_redo());
    enable(*delete_button, current && !current->is_bundled);
    bypass_button->setValue(alive->get_bypass() ? 1.f : 0.f);
}

void COVPluginToolbar::parameter_changed(std::shared_ptr<iparameter_v1>, bool)
{
    const auto alive = component.lock();
    if (!alive || !current)
        return;
    const bool is_changed = look_of(*alive) != current_look;
    if (std::exchange(preset_is_changed, is_changed) != is_changed)
        show_preset_name();
}

void COVPluginToolbar::set_current(const preset_choice& preset)
{
    if (const auto alive = component.lock())
        current_look = look_of(*alive);
    current = preset;
    preset_is_changed = false;
    show_preset_name();
}

void COVPluginToolbar::show_preset_name()
{
    const std::string title = !current            ? translated(no_preset)
                              : preset_is_changed ? current->name + " *"
                                                  : current->name;
    preset_button->setTitle(title.c_str());
    preset_button->invalid();
}

void COVPluginToolbar::drawBackgroundRect(CDrawContext* context, const CRect&)
{
    CRect whole = getViewSize();
    whole.originize();
    context->setFillColor(style::background);
    context->drawRect(whole, kDrawFilled);
    context->setFillColor(style::sunken);
    context->drawRect(CRect(0, whole.bottom - 1, whole.right, whole.bottom), kDrawFilled);
}

void COVPluginToolbar::onMouseDownEvent(MouseDownEvent& event)
{
    shift_is_held = event.modifiers.has(ModifierKey::Shift);
    CViewContainer::onMouseDownEvent(event);
}

void COVPluginToolbar::valueChanged(CControl* control)
{
    if (control == bypass_button)
        return toggleBypass();
    if (control->getValue() <= 0.5f) // a button that springs back
        return;
    if (control == preset_button)
        choosePreset();
    else if (control == save_button)
        savePreset();
    else if (control == delete_button)
        deletePreset();
    else if (control == export_button)
        exportLut();
    else if (control == undo_button)
        undo();
    else if (control == redo_button)
        redo();
    else if (control == history_button)
        showHistory();
    else if (control == reset_button)
        resetGrade();
    else if (control == manual_button)
        openManual();
    else if (control == close_button)
        closeEditor(shift_is_held);
}

void COVPluginToolbar::change_grade(const std::function<void(icomponent_v1&)>& change)
{
    const auto alive = component.lock();
    if (!alive)
        return;
    alive->save_state(true);
    change(*alive);
    alive->save_state(false);
}

void COVPluginToolbar::choosePreset()
{
    if (preset_chooser)
        preset_chooser();
}

void COVPluginToolbar::listPresets(std::vector<preset_choice>& entries, std::vector<std::string>& files)
{
    if (!list_presets(presets, entries))
        tell(*owner_frame, language, "Veridial", preset_messages::cannot_list);
    files.clear();
    std::string reason;
    for (const preset_choice& entry : entries)
        files.push_back(entry.is_bundled ? presets.get_bundled_preset_file(entry.name, reason)
                                         : presets.get_preset_file(entry.name, reason));
}

std::vector<history_step> COVPluginToolbar::listHistory() const
{
    const auto alive = component.lock();
    return alive ? list_history(*alive, labels, language) : std::vector<history_step>();
}

void COVPluginToolbar::showHistory()
{
    const auto steps = listHistory();
    std::vector<popup_item> items;
    for (const history_step& step : steps)
        items.push_back({step.name, step.is_present});
    show_popup(*owner_frame, *history_button, items,
               [this, steps](std::size_t chosen)
               {
                   if (const auto still_alive = component.lock())
                       still_alive->jump_undo_stack(steps[chosen].position);
               });
}

void COVPluginToolbar::loadPreset(const preset_choice& entry)
{
    const auto alive = component.lock();
    if (!alive)
        return;
    std::string reason;
    if (!load_preset_choice(*alive, presets, entry, reason))
        return tell(*owner_frame, language, entry.name, translated(preset_messages::cannot_load) + reason);
    labels.remember(*alive, entry.name);
    set_current(entry);
}

void COVPluginToolbar::labelStep(const char* name)
{
    if (const auto alive = component.lock())
        labels.remember(*alive, translated(name));
}

void COVPluginToolbar::savePreset()
{
    const editor_question question{"{en:Save preset}{de:Preset sichern}", "{en:Name}{de:Name}",
                                   "{en:Save}{de:Sichern}"};
    ask_for_text(*owner_frame, language, question, current && !current->is_bundled ? current->name : std::string(),
                 [this](const std::string& name) { save_as(name, false); });
}

void COVPluginToolbar::save_as(const std::string& name, bool overwrite)
{
    if (!overwrite && presets.preset_exists(name))
    {
        const editor_question question{name, preset_messages::overwrite_question, "{en:Overwrite}{de:Überschreiben}"};
        return ask(*owner_frame, language, question,
                   [this, name](bool yes)
                   {
                       if (yes)
                           save_as(name, true);
                   });
    }
    std::string reason;
    if (!presets.save_preset(name, overwrite, reason))
        return tell(*owner_frame, language, name,
                    translated("{en:The preset cannot be saved: }{de:Das Preset kann nicht gesichert werden: }") +
                        reason);
    set_current({name, false});
}

void COVPluginToolbar::deletePreset()
{
    if (!current || current->is_bundled)
        return;
    const std::string name = current->name;
    const editor_question question{name, "{en:Delete this preset?}{de:Dieses Preset löschen?}",
                                   "{en:Delete}{de:Löschen}"};
    ask(*owner_frame, language, question,
        [this, name](bool yes)
        {
            std::string reason;
            if (!yes)
                return;
            if (!presets.delete_preset(name, reason))
                return tell(*owner_frame, language, name,
                            translated("{en:The preset cannot be deleted: }{de:Das Preset kann nicht gelöscht "
                                       "werden: }") +
                                reason);
            current.reset();
            show_preset_name();
        });
}

void COVPluginToolbar::exportLut()
{
    const std::vector<popup_item> items = {{translated("{en:.cube, 17 points}{de:.cube, 17 Punkte}")},
                                           {translated("{en:.cube, 32 points}{de:.cube, 32 Punkte}")},
                                           {translated("{en:.3dl, 17 points}{de:.3dl, 17 Punkte}")},
                                           {translated("{en:Copy the grade}{de:Grading kopieren}"), false, true},
                                           {translated("{en:Paste a grade}{de:Grading einsetzen}")}};
    show_popup(*owner_frame, *export_button, items,
               [this](std::size_t chosen)
               {
                   if (chosen < 3)
                       exportTable(chosen == 1 ? fine_table_points : table_points, chosen == 2);
                   else if (chosen == 3)
                       copyGrade();
                   else
                       pasteGrade();
               });
}

void COVPluginToolbar::copyGrade()
{
    const auto alive = component.lock();
    std::string reason;
    if (alive && !copy_grade(*alive, reason))
        tell(*owner_frame, language, "Veridial",
             translated("{en:The grade cannot be copied: }{de:Das Grading kann nicht kopiert werden: }") + reason);
}

void COVPluginToolbar::pasteGrade()
{
    const auto alive = component.lock();
    std::string reason;
    if (!alive)
        return;
    if (paste_grade(*alive, reason))
        labelStep("{en:Pasted grade}{de:Eingesetztes Grading}");
    else
        tell(*owner_frame, language, "Veridial",
             translated("{en:There is no grade to paste: }{de:Es gibt kein Grading zum Einsetzen: }") + reason);
}

void COVPluginToolbar::exportTable(unsigned int points, bool as_3dl)
{
    const editor_question question{"{en:Export as a LUT}{de:Als LUT exportieren}", "{en:File}{de:Datei}",
                                   "{en:Export}{de:Exportieren}"};
    ask_for_text(*owner_frame, language, question, offered_path(last_folder, current, as_3dl),
                 [this, points, as_3dl](const std::string& path)
                 {
                     if (!std::filesystem::exists(path))
                         return write_table(path, points, as_3dl);
                     const editor_question overwrite{
                         path,
                         "{en:The file exists already. Overwrite it?}{de:Die Datei existiert bereits. "
                         "Überschreiben?}",
                         "{en:Overwrite}{de:Überschreiben}"};
                     ask(*owner_frame, language, overwrite,
                         [this, path, points, as_3dl](bool yes)
                         {
                             if (yes)
                                 write_table(path, points, as_3dl);
                         });
                 });
}

void COVPluginToolbar::write_table(const std::string& path, unsigned int points, bool as_3dl)
{
    const auto alive = component.lock();
    iobject* found = nullptr;
    lut_argb_variable table;
    if (!alive || !alive->query_interface("lut_exporter", &found) ||
        !static_cast<lut_exporter*>(found)->get_lut(&table))
        return;
    const std::string creator = alive->get_name();
    const bool written = as_3dl ? table.save_as_3dl(path, creator, "") : table.save_as_cube(path, points, creator, "");
    if (written)
        last_folder = std::filesystem::path(path).parent_path().string();
    else
        tell(*owner_frame, language, path,
             "{en:The file cannot be written.}{de:Die Datei kann nicht geschrieben werden.}");
}

void COVPluginToolbar::undo()
{
    if (undo_callback)
        undo_callback();
    else if (const auto alive = component.lock())
        alive->undo();
}

void COVPluginToolbar::redo()
{
    if (redo_callback)
        redo_callback();
    else if (const auto alive = component.lock())
        alive->redo();
}

void COVPluginToolbar::resetGrade()
{
    change_grade([](icomponent_v1& c) { c.reset_to_default(); });
    labelStep("{en:Reset}{de:Zurückgesetzt}");
    current.reset();
    show_preset_name();
}

void COVPluginToolbar::toggleBypass()
{
    change_grade([](icomponent_v1& c) { c.set_bypass(!c.get_bypass()); });
}

void COVPluginToolbar::openManual()
{
    if (const auto alive = component.lock())
        alive->open_manual();
}

void COVPluginToolbar::closeEditor(bool discard_changes)
{
    if (discard_changes && discard)
        return discard();
    if (const auto shown = opened.lock())
        shown->close(); // the session notices, and closes the view
}

} // namespace ov1

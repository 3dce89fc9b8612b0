#include "editor/toolbar/cov_plugin_toolbar.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/icon_button.h"
#include "editor/toolbar/popup_menu.h"
#include "framework/ihost_v1.h"
#include "framework/parameters/iparameter_v1.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/events.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// All lengths are in points.
constexpr CCoord margin = 12;
constexpr CCoord preset_width = 156;
constexpr CCoord preset_height = 28;
constexpr CCoord gap = 1;
constexpr CCoord group_gap = 9;
// A button reports 1 while it is pressed or switched on, and else 0.
constexpr float least_value_of_a_press = 0.5f;

struct button_row
{
    const char* artwork;
    const char* tooltip;
    int group; ///< a wider gap stands between groups
    CTextButton::Style style = CTextButton::kKickStyle;
};

/// In the order of COVPluginToolbar::tool.
constexpr button_row button_rows[] = {
    {"toolbar_save.png", "{en:Save as a preset}{de:Als Preset sichern}", 0},
    {"toolbar_delete.png", "{en:Delete this preset}{de:Dieses Preset löschen}", 0},
    {"toolbar_export.png", "{en:Export as a LUT}{de:Als LUT exportieren}", 0},
    {"toolbar_undo.png", "{en:Undo}{de:Rückgängig}", 1},
    {"toolbar_redo.png", "{en:Redo}{de:Wiederholen}", 1},
    {"toolbar_history.png", "{en:History}{de:Verlauf}", 1},
    {"toolbar_reset.png", "{en:Reset everything}{de:Alles zurücksetzen}", 1},
    {"toolbar_bypass.png", "{en:Bypass the effect}{de:Effekt umgehen}", 2, CTextButton::kOnOffStyle},
    {"toolbar_manual.png", "{en:Open the manual}{de:Handbuch öffnen}", 2},
    {"toolbar_close.png",
     "{en:Close; with Shift, discard the changes}{de:Schließen; mit Umschalt die Änderungen verwerfen}", 2},
};

/// The host's language. The default one without a component or host.
language_id language_of(const std::weak_ptr<icomponent_v1>& component)
{
    const auto effect = component.lock();
    const auto host = effect ? effect->get_host() : nullptr;
    return host ? host->get_language() : language_id{};
}

/// Redraws only after a change: it is called at every idle.
void enable(COVButton& button, bool on)
{
    if (button.getMouseEnabled() == on)
        return;
    button.setMouseEnabled(on);
    button.invalid();
}

} // namespace

COVPluginToolbar::COVPluginToolbar(const CRect& size, CFrame* frame, std::weak_ptr<icomponent_v1> component,
                                   std::weak_ptr<window> window)
    : CViewContainer(size)
    , component(component)
    , opened(std::move(window))
    , dialogs(*frame, language_of(component))
    , history(component, dialogs)
    , presets(component, dialogs, history, [this] { showPresetName(); })
    , lut_export(component, dialogs)
    , clipboard(component, dialogs, history)
{
    addPresetButton();
    addButtons();
    showPresetName();
    idle();
}

void COVPluginToolbar::addPresetButton()
{
    const CPoint corner(margin, (getViewSize().getHeight() - preset_height) / 2);
    preset_button = new COVRoundedGreyButton(CRect(corner, CPoint(preset_width, preset_height)), this, -1, nullptr,
                                             CTextButton::kKickStyle);
    preset_button->setFont(style::text_font());
    preset_button->setTextColor(style::normal_text);
    preset_button->setRightIcon(load_first_frame("toolbar_presets.png"), 1);
    preset_button->setTooltipText(dialogs.translate("{en:Choose a preset}{de:Preset wählen}").c_str());
    addView(preset_button);
}

void COVPluginToolbar::addButtons()
{
    static_assert(std::size(button_rows) == static_cast<std::size_t>(tool::count));
    CPoint corner(margin + preset_width + group_gap, (getViewSize().getHeight() - icon_button_size) / 2);
    int last_group = button_rows[0].group;
    for (std::size_t i = 0; i < buttons.size(); ++i)
    {
        const button_row& row = button_rows[i];
        // The first button of a group stands further to the right.
        corner.x += row.group == std::exchange(last_group, row.group) ? 0 : group_gap;
        buttons[i] = make_icon_button(corner, *this, row.style, row.artwork, dialogs.translate(row.tooltip));
        addView(buttons[i]);
        corner.x += icon_button_size + gap;
    }
}

void COVPluginToolbar::show_undo_redo_button(bool show, std::function<void()> undo, std::function<void()> redo)
{
    history.set_callbacks(std::move(undo), std::move(redo));
    button(tool::undo).setVisible(show);
    button(tool::redo).setVisible(show);
}

void COVPluginToolbar::idle()
{
    const auto effect = component.lock();
    if (!effect)
        return;
    // Keys, the host and other views change these states too, so all of them are read again.
    enable(button(tool::undo), history.can_undo());
    enable(button(tool::redo), history.can_redo());
    enable(button(tool::remove), presets.get_session().get_own_current() != nullptr);
    button(tool::bypass).setValue(effect->get_bypass() ? 1.f : 0.f);
}

void COVPluginToolbar::parameter_changed(std::shared_ptr<iparameter_v1> parameter, bool)
{
    if (presets.parameter_changed(*parameter))
        showPresetName();
}

void COVPluginToolbar::showPresetName()
{
    const preset_session& session = presets.get_session();
    const std::string title = session.get_current() ? session.get_current()->name + (session.is_changed() ? " *" : "")
                                                    : dialogs.translate("{en:Presets}{de:Presets}");
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
    // The later valueChanged has no event: whether Shift was held is kept for the close button.
    shift_is_held = event.modifiers.has(ModifierKey::Shift);
    CViewContainer::onMouseDownEvent(event);
}

void COVPluginToolbar::valueChanged(CControl* control)
{
    const bool is_pressed = control->getValue() > least_value_of_a_press;
    if (control == preset_button && is_pressed && preset_chooser)
        return preset_chooser();
    // By pointer: the buttons have no tag, because they stand for no parameter.
    const auto found = std::ranges::find(buttons, control);
    if (found == buttons.end())
        return;
    const auto which = static_cast<tool>(found - buttons.begin());
    // The bypass button stays on or off; the others report 1 and then 0 for one press.
    if (is_pressed || which == tool::bypass)
        run(which);
}

void COVPluginToolbar::run(tool pressed)
{
    switch (pressed)
    {
    case tool::save:
        return presets.save();
    case tool::remove:
        return presets.remove();
    case tool::exporting:
        return showExportMenu();
    case tool::undo:
        return history.undo();
    case tool::redo:
        return history.redo();
    case tool::history:
        return history.show_menu(button(tool::history));
    case tool::reset:
        return resetGrade();
    case tool::bypass:
        return toggleBypass();
    case tool::manual:
        return openManual();
    case tool::close:
        return closeEditor(shift_is_held);
    // Not a button.
    case tool::count:
        return;
    }
}

void COVPluginToolbar::showExportMenu()
{
    struct row
    {
        popup_item item;
        std::function<void()> act;
    };
    const auto export_as = [this](lut_file kind)
    {
        return [this, kind]
        {
            const auto& current = presets.get_session().get_current();
            lut_export.run(kind, current ? current->name : std::string());
        };
    };
    const std::vector<row> rows = {
        {{dialogs.translate("{en:.cube, 17 points}{de:.cube, 17 Punkte}")}, export_as(lut_file::cube_17)},
        {{dialogs.translate("{en:.cube, 32 points}{de:.cube, 32 Punkte}")}, export_as(lut_file::cube_32)},
        {{dialogs.translate("{en:.3dl, 17 points}{de:.3dl, 17 Punkte}")}, export_as(lut_file::threedl_17)},
        {{dialogs.translate("{en:Copy the grade}{de:Grading kopieren}"), false, true}, [this] { clipboard.copy(); }},
        {{dialogs.translate("{en:Paste a grade}{de:Grading einsetzen}")}, [this] { clipboard.paste(); }}};
    // The menu stays open after this function: its callback has a copy of the rows.
    std::vector<popup_item> items;
    for (const row& each : rows)
        items.push_back(each.item);
    show_popup(dialogs.get_frame(), button(tool::exporting), items, [rows](std::size_t chosen) { rows[chosen].act(); });
}

void COVPluginToolbar::resetGrade()
{
    // The label names the latest step, so it comes after the step.
    history.make_step([](icomponent_v1& effect) { effect.reset_to_default(); });
    history.label_step(dialogs.translate("{en:Reset}{de:Zurückgesetzt}"));
    presets.forget_current();
}

void COVPluginToolbar::toggleBypass()
{
    history.make_step([](icomponent_v1& effect) { effect.set_bypass(!effect.get_bypass()); });
}

void COVPluginToolbar::openManual()
{
    if (const auto effect = component.lock())
        effect->open_manual();
}

void COVPluginToolbar::closeEditor(bool discard_changes)
{
    if (discard_changes && discard)
        return discard();
    if (const auto shown = opened.lock())
        shown->close(); // the session notices, and closes the view
}

} // namespace ov1

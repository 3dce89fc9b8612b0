#include "editor/controls/modal/key_table.h"

#include <algorithm>

namespace ov1
{

namespace
{

using VSTGUI::VirtualKey;

// What the strokes below are made of: a key alone, with Shift, a character, a character with Control.
constexpr key_stroke plain(VirtualKey key) { return {key}; }
constexpr key_stroke shifted(VirtualKey key) { return {key, 0, true}; }
constexpr key_stroke letter(char32_t character) { return {VirtualKey::None, character}; }
constexpr key_stroke command(char32_t character, bool with_shift = false)
{
    return {VirtualKey::None, character, with_shift, true};
}

constexpr key_stroke next_keys[] = {plain(VirtualKey::Tab)};
constexpr key_stroke previous_keys[] = {shifted(VirtualKey::Tab)};
constexpr key_stroke nudge_keys[] = {plain(VirtualKey::Left), plain(VirtualKey::Right), plain(VirtualKey::Up),
                                     plain(VirtualKey::Down)};
constexpr key_stroke fine_keys[] = {shifted(VirtualKey::Left), shifted(VirtualKey::Right), shifted(VirtualKey::Up),
                                    shifted(VirtualKey::Down)};
constexpr key_stroke reset_keys[] = {plain(VirtualKey::Delete), plain(VirtualKey::Back)};
constexpr key_stroke undo_keys[] = {command('z')};
constexpr key_stroke redo_keys[] = {command('z', true), command('y')};
// Plain letters can be commands: while a text field has the focus, the editor ignores this table.
constexpr key_stroke bypass_keys[] = {letter('b')};
constexpr key_stroke before_keys[] = {letter('c')};
constexpr key_stroke split_keys[] = {letter('s')};
constexpr key_stroke fit_keys[] = {letter('f')};
constexpr key_stroke actual_size_keys[] = {letter('1')};
constexpr key_stroke inspire_keys[] = {letter('r')};
/// On some keyboards the question mark needs Shift, on others not.
constexpr key_stroke help_keys[] = {plain(VirtualKey::F1), letter('?'), {VirtualKey::None, '?', true}};

// The help lists the rows in this order.
constexpr key_row key_table[] = {
    {key_action::next_control, next_keys, "{en:Tab}{de:Tab}", "{en:Next control}{de:Nächster Regler}"},
    {key_action::previous_control, previous_keys, "{en:Shift + Tab}{de:Umschalt + Tab}",
     "{en:Previous control}{de:Voriger Regler}"},
    {key_action::nudge, nudge_keys, "{en:Arrow keys}{de:Pfeiltasten}",
     "{en:Move the control a little}{de:Regler ein wenig bewegen}"},
    {key_action::nudge_finely, fine_keys, "{en:Shift + arrow keys}{de:Umschalt + Pfeiltasten}",
     "{en:Move it a tenth as far}{de:Um ein Zehntel davon bewegen}"},
    {key_action::reset_control, reset_keys, "{en:Delete, Backspace}{de:Entf, Rücktaste}",
     "{en:Reset the control}{de:Regler zurücksetzen}"},
    {key_action::undo, undo_keys, "{en:Ctrl + Z}{de:Strg + Z}", "{en:Undo}{de:Rückgängig}"},
    {key_action::redo, redo_keys, "{en:Ctrl + Shift + Z, Ctrl + Y}{de:Strg + Umschalt + Z, Strg + Y}",
     "{en:Redo}{de:Wiederholen}"},
    {key_action::bypass, bypass_keys, "{en:B}{de:B}", "{en:Bypass the effect}{de:Effekt umgehen}"},
    {key_action::before, before_keys, "{en:C}{de:C}", "{en:Before or after}{de:Vorher oder nachher}"},
    {key_action::split, split_keys, "{en:S}{de:S}",
     "{en:Before and after, side by side}{de:Vorher und nachher geteilt}"},
    {key_action::fit, fit_keys, "{en:F}{de:F}", "{en:Fit the picture}{de:Bild einpassen}"},
    {key_action::actual_size, actual_size_keys, "{en:1}{de:1}", "{en:Picture at 100 %}{de:Bild mit 100 %}"},
    {key_action::inspire, inspire_keys, "{en:R}{de:R}", "{en:Random look}{de:Zufälliger Look}"},
    {key_action::help, help_keys, "{en:F1, ?}{de:F1, ?}", "{en:These keys}{de:Diese Tasten}"},
};

constexpr mouse_row mouse_table[] = {
    {"{en:Shift + drag}{de:Umschalt + Ziehen}", "{en:Ten times finer}{de:Zehnmal so fein}"},
    {"{en:Ctrl + drag a wheel}{de:Strg + Rad ziehen}",
     "{en:Horizontally or vertically only}{de:Nur waagerecht oder senkrecht}"},
    {"{en:Right click, Alt + click}{de:Rechtsklick, Alt + Klick}", "{en:Reset}{de:Zurücksetzen}"},
    {"{en:Double click an arc, a slider}{de:Doppelklick auf Bogen, Regler}", "{en:Reset}{de:Zurücksetzen}"},
    {"{en:Click a value}{de:Klick auf einen Wert}", "{en:Type it}{de:Eintippen}"},
    {"{en:Esc twice}{de:Esc zweimal}", "{en:Close and discard}{de:Schließen und verwerfen}"},
};

/// The lower-case letter of a key. X11 reports a letter with Control as the control character 1 to 26.
char32_t plain_character(const VSTGUI::KeyboardEvent& event)
{
    const char32_t character = event.character;
    if (event.modifiers.has(VSTGUI::ModifierKey::Control) && character >= 1 && character <= 26)
        return character + U'a' - 1;
    return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}

/// Shift and Control must be exactly as in the stroke: Ctrl+Z and Ctrl+Shift+Z are two actions.
bool matches(const key_stroke& stroke, const VSTGUI::KeyboardEvent& event)
{
    const bool is_key =
        stroke.virt != VirtualKey::None ? stroke.virt == event.virt : stroke.character == plain_character(event);
    return is_key && stroke.with_shift == event.modifiers.has(VSTGUI::ModifierKey::Shift) &&
           stroke.with_control == event.modifiers.has(VSTGUI::ModifierKey::Control);
}

} // namespace

std::span<const key_row> get_key_table() { return key_table; }

std::span<const mouse_row> get_mouse_table() { return mouse_table; }

std::optional<key_action> find_key_action(const VSTGUI::KeyboardEvent& event)
{
    // Keys with Alt or the desktop's key are left to the host and the window manager.
    if (event.type != VSTGUI::EventType::KeyDown || event.modifiers.has(VSTGUI::ModifierKey::Alt) ||
        event.modifiers.has(VSTGUI::ModifierKey::Super))
        return {};
    for (const key_row& row : key_table)
        if (std::ranges::any_of(row.strokes, [&](const key_stroke& stroke) { return matches(stroke, event); }))
            return row.action;
    return {};
}

VSTGUI::CPoint direction_of(VirtualKey arrow)
{
    switch (arrow)
    {
    case VirtualKey::Left:
        return {-1.0, 0.0};
    case VirtualKey::Right:
        return {1.0, 0.0};
    case VirtualKey::Up:
        return {0.0, -1.0};
    case VirtualKey::Down:
        return {0.0, 1.0};
    default:
        return {};
    }
}

} // namespace ov1

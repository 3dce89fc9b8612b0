// The editor's keys: what each key does, and what the help says about it.
#pragma once

#include "vstgui/vstgui.h"

#include <optional>
#include <span>

namespace ov1
{

enum class key_action
{
    next_control,
    previous_control,
    nudge, ///< in the direction of the arrow
    nudge_finely,
    reset_control,
    undo,
    redo,
    bypass,
    before,
    split,
    fit,
    actual_size,
    inspire,
    help,
};

/// A key and the modifiers that must be held, no others. Either virt or character is set; the character is a lower-case
/// letter, a digit or a sign.
struct key_stroke
{
    VSTGUI::VirtualKey virt = VSTGUI::VirtualKey::None;
    char32_t character = 0;
    bool with_shift = false;
    bool with_control = false;
};

/// An action, the keys that start it, and its line of the help. Texts are localised literals.
struct key_row
{
    key_action action;
    std::span<const key_stroke> strokes;
    const char* keys;
    const char* text;
};

/// A line of the help about the mouse. Texts are localised literals.
struct mouse_row
{
    const char* gesture;
    const char* text;
};

/// Every action once, in the order of the help.
std::span<const key_row> get_key_table();
std::span<const mouse_row> get_mouse_table();

/// The action of a key press. Nothing for other keys, for key releases, and while Alt or the desktop's key is held.
std::optional<key_action> find_key_action(const VSTGUI::KeyboardEvent& event);

/// The unit step of an arrow key, x to the right and y down; 0, 0 for other keys.
VSTGUI::CPoint direction_of(VSTGUI::VirtualKey arrow);

} // namespace ov1

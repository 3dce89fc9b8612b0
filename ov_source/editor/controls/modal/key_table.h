// The editor's keys: which key does what, and how the help says so.
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

/// A key with the modifiers that have to be held. Either virt or character counts; the character is a small letter,
/// digit or sign.
struct key_stroke
{
    VSTGUI::VirtualKey virt = VSTGUI::VirtualKey::None;
    char32_t character = 0;
    bool with_shift = false;
    bool with_control = false;
};

/// One line of the help. Texts are localised literals.
struct key_row
{
    key_action action;
    std::span<const key_stroke> strokes;
    const char* keys;
    const char* text;
};

/// The same for what the mouse does with a key held, or twice.
struct mouse_row
{
    const char* gesture;
    const char* text;
};

/// In the order of the help.
std::span<const key_row> get_key_table();
std::span<const mouse_row> get_mouse_table();

/// What a key that goes down does; nothing for all others. Alt and the desktop's own key are never held.
std::optional<key_action> find_key_action(const VSTGUI::KeyboardEvent& event);

/// A step of 1 to the right or down for an arrow key; 0, 0 for others.
VSTGUI::CPoint direction_of(VSTGUI::VirtualKey arrow);

} // namespace ov1

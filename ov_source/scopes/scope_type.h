// The four scopes behind one interface, for code that lets a user choose.
#pragma once

#include "scopes/scope_counter.h"

namespace ov1
{

/// Values are indices below scope_type_count.
enum class scope_type : std::size_t
{
    waveform,
    parade,
    vectorscope,
    histogram,
};
inline constexpr std::size_t scope_type_count = 4;

/// The member of a selection that belongs to a scope.
bool& chosen(scope_selection& selection, scope_type type);
bool is_chosen(const scope_selection& selection, scope_type type);

/// Columns of a waveform and of a parade: one per pixel of their width in an area.
scope_sampling sampling_for(const rect& area, int line_width);

/// Draws one scope as its own draw function does, the waveform in a neutral grey. Only the vectorscope has the skin
/// line.
void draw_scope(scope_type type, const scope_counts& counts, bool skin_line, const rect& area, int line_width,
                scope_picture& picture);

/// The texts of the scope that draw_scope draws with the same area and line_width.
scope_labels scope_labels_of(scope_type type, const rect& area, int line_width);

} // namespace ov1

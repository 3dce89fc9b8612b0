// The four scopes as one, for who lets a user choose.
#pragma once

#include "scopes/scope_counter.h"

namespace ov1
{

enum class scope_type : std::size_t
{
    waveform,
    parade,
    vectorscope,
    histogram,
};
inline constexpr std::size_t scope_type_count = 4;

bool& chosen(scope_selection& selection, scope_type type);
bool is_chosen(const scope_selection& selection, scope_type type);

/// A column for each pixel that a waveform or a parade is wide within an area.
scope_sampling sampling_for(const rect& area, int line_width);

/// Draws one scope of the counts, the waveform in a neutral grey; see each scope's own. The skin line is the
/// vectorscope's alone.
void draw_scope(scope_type type, const scope_counts& counts, bool skin_line, const rect& area, int line_width,
                scope_picture& picture);

scope_labels scope_labels_of(scope_type type, const rect& area, int line_width);

} // namespace ov1

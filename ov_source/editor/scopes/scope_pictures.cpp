#include "editor/scopes/scope_pictures.h"

#include "platform/rows.h"

#include <utility>

namespace ov1
{

namespace
{

/// Whether every scope of some is one of all.
bool includes(const scope_selection& all, const scope_selection& some)
{
    for (std::size_t i = 0; i < scope_type_count; ++i)
        if (is_chosen(some, scope_type{i}) && !is_chosen(all, scope_type{i}))
            return false;
    return true;
}

} // namespace

void scope_pictures::update(const image& graded)
{
    const std::scoped_lock guard(mutex);
    // Hidden scopes are not counted, and what was counted before belongs to an old frame.
    counted = present.is_visible ? present.choice.shown : scope_selection{};
    if (!present.is_visible)
        return;
    // Waveform and parade have one column for each pixel of their width.
    scope_sampling sampling = sampling_for({0, 0, present.width, present.height}, present.line_width);
    sampling.row_step = present.row_step;
    counter.count(frame_of(graded), counted, sampling);
    draw_all();
}

bool scope_pictures::order(const scope_order& wanted)
{
    const std::scoped_lock guard(mutex);
    // Kept while hidden, so that update knows whether to count.
    present = wanted;
    if (!present.is_visible)
        return true;
    draw_all();
    return includes(counted, present.choice.shown);
}

bool scope_pictures::take_change()
{
    const std::scoped_lock guard(mutex);
    return std::exchange(has_changed, false);
}

void scope_pictures::draw_all()
{
    const auto draw = [this](std::size_t first, std::size_t end)
    {
        for (std::size_t i = first; i < end; ++i)
        {
            const scope_type type{i};
            if (!is_chosen(present.choice.shown, type))
                continue;
            pictures[i].reset(present.width, present.height); // an empty scope, until it is counted
            if (is_chosen(counted, type))
                draw_scope(type, counter.get_counts(), present.choice.skin_line, {0, 0, present.width, present.height},
                           present.line_width, pictures[i]);
        }
    };
    // One scope for each core; drawing one is not divided further.
    for_each_row_piece(scope_type_count, 1, 0, draw);
    has_changed = true;
}

} // namespace ov1

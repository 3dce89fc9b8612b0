#include "framework/undo_ring.h"

#include <algorithm>
#include <utility>

namespace ov1
{

namespace
{

// slot_count is a power of two, so that a mask gives p mod slot_count.
constexpr int slot_mask = undo_ring::slot_count - 1;
static_assert((undo_ring::slot_count & slot_mask) == 0);

} // namespace

int undo_ring::store(bytes state, bool advance)
{
    const int stored = position;
    slots[stored & slot_mask] = std::move(state);
    // The slot belonged to the position slot_count earlier, which is lost.
    oldest_intact = std::max(oldest_intact, stored - slot_mask);
    if (advance)
    {
        // After steps beyond range() nothing below this position is intact.
        oldest_intact = std::min(oldest_intact, stored);
        position += 1;
        top = position;
        // The number of positions that can be stepped back to.
        depth = std::min(position, slot_count);
    }
    return stored;
}

std::optional<undo_ring::bytes> undo_ring::step_back()
{
    if (bottom() >= position)
        return std::nullopt;
    return move_to(position - 1);
}

std::optional<undo_ring::bytes> undo_ring::step_forward()
{
    if (position >= top)
        return std::nullopt;
    return move_to(position + 1);
}

std::optional<undo_ring::bytes> undo_ring::jump(int to)
{
    if (to == position || to > top || to < bottom())
        return std::nullopt;
    return move_to(to);
}

undo_ring::bytes undo_ring::peek(int at) const
{
    return at < oldest_intact || at > top ? bytes() : slots[at & slot_mask];
}

void undo_ring::flush()
{
    top = depth = position = oldest_intact = 0;
    slots[0].clear();
}

undo_range undo_ring::range() const { return {oldest_intact, position, top}; }

// Counted modulo slot_count, and so not the oldest intact position: see the class.
int undo_ring::bottom() const { return (top - depth) & slot_mask; }

/// The bytes are copied, because a later store may replace the slot.
undo_ring::bytes undo_ring::move_to(int to)
{
    position = to;
    return slots[to & slot_mask];
}

} // namespace ov1

// The undo history: 32 slots of bytes on a ring, which knows no parameter.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ov1
{

/// Positions of an undo history, oldest <= newest. A user is offered these and no others.
struct undo_range
{
    int oldest = 0;
    int position = 0;
    int newest = 0;

    bool can_undo() const { return position > oldest; }
    bool can_redo() const { return position < newest; }
    bool operator==(const undo_range&) const = default;
};

/// Position p lies in slot p mod 32; positions only grow until flush. Stepping and jumping reach 32 positions back,
/// of which the last shares its slot with the newest and, beyond 64 positions, lower ones with later ones: the ring
/// is kept so, and range() leaves out what another position has overwritten.
class undo_ring
{
public:
    static constexpr int slot_count = 32;
    using bytes = std::vector<std::uint8_t>;

    /// Replaces the current slot. With advance the slot is committed: the position moves on and all later positions are
    /// discarded. Returns the position before.
    int store(bytes state, bool advance);

    /// Move the position and give the bytes stored there (empty where nothing was); nothing, with no move, at the ends.
    [[nodiscard]] std::optional<bytes> step_back();
    [[nodiscard]] std::optional<bytes> step_forward();
    [[nodiscard]] std::optional<bytes> jump(int to);

    /// What is stored at a position of range(); empty where nothing is, and for other positions.
    bytes peek(int at) const;

    /// Back to position 0 with slot 0 empty.
    void flush();

    int get_position() const { return position; }
    int get_top() const { return top; }
    int get_depth() const { return depth; }

    /// At most the last 31 steps: the positions whose slots still hold their own states.
    undo_range range() const;

private:
    /// The lowest position that stepping and jumping reach.
    int bottom() const;
    bytes move_to(int to);

    std::array<bytes, slot_count> slots;
    int top = 0;
    int depth = 0;
    int position = 0;
    int oldest_intact = 0;
};

} // namespace ov1

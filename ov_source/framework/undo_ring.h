// The undo history: a ring of 32 slots of bytes.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ov1
{

/// The positions of an undo history that a user may go to, oldest <= newest.
struct undo_range
{
    /// The oldest position with its own state.
    int oldest = 0;
    /// The present position.
    int position = 0;
    /// The newest position that redo leads to.
    int newest = 0;

    bool can_undo() const { return position > oldest; }
    bool can_redo() const { return position < newest; }
    bool operator==(const undo_range&) const = default;
};

/// Position p is stored in slot p mod 32; positions only grow until flush. Stepping and jumping accept 32 positions
/// back, although the last of them shares its slot with the newest and, beyond 64 positions, more slots are shared.
/// This is meant; range() excludes positions whose slot has been overwritten.
class undo_ring
{
public:
    static constexpr int slot_count = 32;
    using bytes = std::vector<std::uint8_t>;

    /// Replaces the current slot. With advance, the slot is committed: the position increases by one and all later
    /// positions are discarded. Returns the previous position.
    int store(bytes state, bool advance);

    /// Move the position and return the bytes stored there, which may be empty. At the ends they return nothing and do
    /// not move.
    [[nodiscard]] std::optional<bytes> step_back();
    [[nodiscard]] std::optional<bytes> step_forward();
    [[nodiscard]] std::optional<bytes> jump(int to);

    /// The bytes stored at a position of range(); empty for other positions.
    bytes peek(int at) const;

    /// Back to position 0 with slot 0 empty.
    void flush();

    /// The position that store() writes next.
    int get_position() const { return position; }
    int get_top() const { return top; }
    int get_depth() const { return depth; }

    /// The positions whose slots still hold their own state: at most the last 31 steps.
    undo_range range() const;

private:
    /// The lowest position that stepping and jumping accept.
    int bottom() const;
    /// Moves without a check.
    bytes move_to(int to);

    /// Position p is in slot p mod slot_count.
    std::array<bytes, slot_count> slots;
    /// The newest position.
    int top = 0;
    /// How many positions before the newest were stored, at most slot_count.
    int depth = 0;
    int position = 0;
    /// The oldest position whose slot was not overwritten.
    int oldest_intact = 0;
};

} // namespace ov1

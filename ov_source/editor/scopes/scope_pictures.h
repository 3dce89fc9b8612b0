// The scopes' pictures of the graded frame, counted and drawn without the toolkit.
#pragma once

#include "scopes/scope_type.h"

#include <array>
#include <mutex>

namespace ov1
{

/// The user's choice of scopes.
struct scope_choice
{
    scope_selection shown{.waveform = true, .vectorscope = true};
    bool skin_line = false; ///< drawn on the vectorscope

    bool operator==(const scope_choice&) const = default;
};

/// What to draw.
struct scope_order
{
    scope_choice choice;
    bool is_visible = false; ///< while false, nothing is counted or drawn
    int width = 0;           ///< of each picture, in pixels
    int height = 0;
    int line_width = 1;       ///< in pixels
    std::size_t row_step = 1; ///< of the frame's rows, every row_step-th is counted
};

/// May be used from any thread: frames may arrive on another thread than the one that shows the pictures.
class scope_pictures
{
public:
    /// Counts a frame and draws what the last order says, on all cores.
    void update(const image& graded);

    /// Replaces the order and draws it at once, from the counts of the last frame. False where the order shows a scope
    /// that was not counted: its picture is empty until the next update.
    [[nodiscard]] bool order(const scope_order& wanted);

    /// Whether pictures were drawn since the last call.
    bool take_change();

    /// Calls read(picture) under the lock, so that the picture does not change meanwhile.
    template <class function>
    void read_picture(scope_type type, const function& read) const
    {
        const std::scoped_lock guard(mutex);
        read(pictures[static_cast<std::size_t>(type)]);
    }

private:
    /// Under the lock. What was not counted is drawn empty.
    void draw_all();

    mutable std::mutex mutex; ///< guards all below
    scope_order present;
    scope_selection counted; ///< in the last frame
    scope_counter counter;
    std::array<scope_picture, scope_type_count> pictures; ///< by scope_type
    bool has_changed = false;
};

} // namespace ov1

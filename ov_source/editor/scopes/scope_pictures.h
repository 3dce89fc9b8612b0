// The scopes of the graded frame, counted and drawn apart from the toolkit.
#pragma once

#include "scopes/scope_type.h"

#include <array>
#include <mutex>

namespace ov1
{

/// Which scopes are shown and how.
struct scope_choice
{
    scope_selection shown{.waveform = true, .vectorscope = true};
    bool skin_line = false; ///< on the vectorscope

    bool operator==(const scope_choice&) const = default;
};

/// What is to be drawn.
struct scope_order
{
    scope_choice choice;
    bool is_visible = false; ///< while not, nothing is counted and nothing drawn
    int width = 0;           ///< of each picture, in pixels
    int height = 0;
    int line_width = 1;       ///< in pixels
    std::size_t row_step = 1; ///< of the frame's rows, counts one of so many
};

/// Safe from any thread: frames may come from another than the one that shows the pictures.
class scope_pictures
{
public:
    /// Counts a frame and draws what was ordered, on all cores.
    void update(const image& graded);

    /// Changes what is drawn, at once, from the last frame's counts. False where a scope is now shown that was not
    /// counted in it: its picture is empty until the next update.
    [[nodiscard]] bool order(const scope_order& wanted);

    /// Whether pictures were drawn since the last call.
    bool take_news();

    /// Calls look(picture) while the picture does not change.
    template <class function>
    void look_at(scope_type type, const function& look) const
    {
        const std::scoped_lock guard(mutex);
        look(pictures[static_cast<std::size_t>(type)]);
    }

private:
    void draw_all();

    mutable std::mutex mutex; ///< guards all below
    scope_order present;
    scope_selection counted; ///< in the last frame
    scope_counter counter;
    std::array<scope_picture, scope_type_count> pictures;
    bool has_news = false;
};

} // namespace ov1

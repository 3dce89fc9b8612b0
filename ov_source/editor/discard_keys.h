// Escape pressed twice closes the editor without keeping the changes.
#pragma once

#include "vstgui/lib/cframe.h"

#include <chrono>
#include <functional>

namespace ov1
{

/// Watches the frame's keys during its lifetime; the frame outlives it. While a question is open, Escape belongs to the
/// question.
class discard_keys : public VSTGUI::IKeyboardHook
{
public:
    /// on_discard is called at the second of two presses within 0.8 s.
    discard_keys(VSTGUI::CFrame& frame, std::function<void()> on_discard);
    ~discard_keys() noexcept override;
    discard_keys(const discard_keys&) = delete;
    discard_keys& operator=(const discard_keys&) = delete;

    /// Consumes the second press only. Repeats of a held key do not count.
    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame* frame) override;

private:
    using clock = std::chrono::steady_clock;

    VSTGUI::CFrame& frame;
    const std::function<void()> on_discard;
    /// Time of the first press of a pair; the clock's epoch at the beginning and after a pair.
    clock::time_point last_escape;
};

} // namespace ov1

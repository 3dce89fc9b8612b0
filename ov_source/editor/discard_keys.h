// Escape pressed twice: closing without keeping the changes.
#pragma once

#include "vstgui/lib/cframe.h"

#include <chrono>
#include <functional>

namespace ov1
{

/// Watches the frame's keys for as long as it lives; the frame outlives it. Escapes within a question belong to the
/// question.
class discard_keys : public VSTGUI::IKeyboardHook
{
public:
    discard_keys(VSTGUI::CFrame& frame, std::function<void()> discard);
    ~discard_keys() noexcept override;
    discard_keys(const discard_keys&) = delete;
    discard_keys& operator=(const discard_keys&) = delete;

    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame* frame) override;

private:
    using clock = std::chrono::steady_clock;

    VSTGUI::CFrame& frame;
    const std::function<void()> discard;
    clock::time_point last_escape;
};

} // namespace ov1

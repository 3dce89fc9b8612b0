// A window without a desktop: open until it is closed.
#pragma once

#include "framework/window.h"

namespace ov1
{

struct fake_window : window
{
    void close() override { open = false; }
    bool is_open() const override { return open; }
    void* get_native_handle() const override { return const_cast<fake_window*>(this); }
    void begin_modal() override { ++modal_changes; }
    void end_modal() override { ++modal_changes; }
    bool is_modal() const override { return modal_changes == 1; }
    void pop_pending_messages() override
    {
        if (pump)
            pump();
    }
    void set_pump_hook(std::function<void()> hook) override { pump = std::move(hook); }
    void raise() override { ++raises; }
    void set_resize_listener(std::function<void(int, int)> listener) override { resized = std::move(listener); }

    bool open = true;
    int modal_changes = 0;
    int raises = 0;
    std::function<void()> pump;
    std::function<void(int, int)> resized;
};

} // namespace ov1

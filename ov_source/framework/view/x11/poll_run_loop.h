// The toolkit's run loop on Linux: polls the file descriptors and timers of all editors of the process.
#pragma once

#include "vstgui/lib/platform/iplatformframe.h"
#include "vstgui/lib/platform/platform_x11.h"
#include "vstgui/lib/vstguibase.h"

#include <chrono>
#include <cstdint>
#include <vector>

#include <poll.h>

namespace ov1
{

#if VSTGUI_VERSION_MINOR >= 15
using toolkit_run_loop = VSTGUI::IRunLoop;
using toolkit_event_handler = VSTGUI::IEventHandler;
using toolkit_timer_handler = VSTGUI::ITimerHandler;
#else
using toolkit_run_loop = VSTGUI::X11::IRunLoop;
using toolkit_event_handler = VSTGUI::X11::IEventHandler;
using toolkit_timer_handler = VSTGUI::X11::ITimerHandler;
#endif

/// Used on one thread. Handlers and timers may be added and removed while run_once runs, and a handler may call
/// run_once itself, as a modal question does.
class poll_run_loop final : public VSTGUI::AtomicReferenceCounted, public toolkit_run_loop
{
public:
    bool registerEventHandler(int fd, toolkit_event_handler* handler) override;
    bool unregisterEventHandler(toolkit_event_handler* handler) override;
    bool registerTimer(std::uint64_t period_ms, toolkit_timer_handler* handler) override;
    bool unregisterTimer(toolkit_timer_handler* handler) override;

    /// Waits for input or a timer, at most the given time, and calls what is due.
    void run_once(std::chrono::milliseconds longest_wait);

private:
    using clock = std::chrono::steady_clock;

    struct descriptor
    {
        int fd;
        toolkit_event_handler* handler;
        std::uint64_t id;
    };
    struct timer
    {
        toolkit_timer_handler* handler;
        std::chrono::milliseconds period;
        clock::time_point next;
        std::uint64_t id;
    };

    void wait(std::chrono::milliseconds longest);
    void call_event_handlers();
    void call_due_timers();

    std::vector<descriptor> descriptors;
    std::vector<timer> timers;
    std::uint64_t next_id = 0;
};

} // namespace ov1

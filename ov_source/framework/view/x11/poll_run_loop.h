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
    /// As the toolkit's interface requires; handlers are not owned.
    bool registerEventHandler(int fd, toolkit_event_handler* handler) override;
    bool unregisterEventHandler(toolkit_event_handler* handler) override;
    /// Periods are in milliseconds and at least 1.
    bool registerTimer(std::uint64_t period_ms, toolkit_timer_handler* handler) override;
    bool unregisterTimer(toolkit_timer_handler* handler) override;

    /// Waits for input or a timer, at most the given time, and calls what is due.
    void run_once(std::chrono::milliseconds longest_wait);

private:
    using clock = std::chrono::steady_clock;

    /// A file descriptor that is polled for input.
    struct descriptor
    {
        int fd;
        toolkit_event_handler* handler;
        /// Unique among descriptors and timers.
        std::uint64_t id;
    };
    /// A timer that repeats until it is removed.
    struct timer
    {
        toolkit_timer_handler* handler;
        std::chrono::milliseconds period;
        /// When the timer is due.
        clock::time_point next;
        std::uint64_t id;
    };

    /// Polls the descriptors until input, the next timer or the given time.
    void wait(std::chrono::milliseconds longest);
    void call_event_handlers();
    /// Calls the timers that are due, each once.
    void call_due_timers();

    std::vector<descriptor> descriptors;
    std::vector<timer> timers;
    std::uint64_t next_id = 0;
};

} // namespace ov1

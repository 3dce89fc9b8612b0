#include "framework/view/x11/poll_run_loop.h"

#include <algorithm>

namespace ov1
{

/// The number identifies a registration: a handler may register again while handlers are being called.
bool poll_run_loop::registerEventHandler(int fd, toolkit_event_handler* handler)
{
    descriptors.push_back({fd, handler, next_id++});
    return true;
}

bool poll_run_loop::unregisterEventHandler(toolkit_event_handler* handler)
{
    return std::erase_if(descriptors, [&](const descriptor& d) { return d.handler == handler; }) > 0;
}

bool poll_run_loop::registerTimer(std::uint64_t period_ms, toolkit_timer_handler* handler)
{
    // A period of 0 would call the timer without a pause.
    const std::chrono::milliseconds period(std::max<std::uint64_t>(period_ms, 1));
    timers.push_back({handler, period, clock::now() + period, next_id++});
    return true;
}

bool poll_run_loop::unregisterTimer(toolkit_timer_handler* handler)
{
    return std::erase_if(timers, [&](const timer& t) { return t.handler == handler; }) > 0;
}

void poll_run_loop::run_once(std::chrono::milliseconds longest_wait)
{
    // Events before timers, so that a timer that draws sees the newest input.
    wait(longest_wait);
    call_event_handlers();
    call_due_timers();
}

void poll_run_loop::wait(std::chrono::milliseconds longest)
{
    const auto now = clock::now();
    for (const timer& t : timers)
        // Rounded up: rounding down would wake too early and poll again and again.
        longest = std::min(longest, std::chrono::ceil<std::chrono::milliseconds>(t.next - now));
    std::vector<pollfd> watched;
    for (const descriptor& d : descriptors)
        watched.push_back({d.fd, POLLIN, 0});
    // A negative time would wait without end. Errors end the wait like input.
    ::poll(watched.data(), watched.size(), std::max(0, static_cast<int>(longest.count())));
}

void poll_run_loop::call_event_handlers()
{
    // All handlers, readable or not: waiting for a reply may have moved later events into the connection's own queue,
    // where poll cannot see them.
    const auto present = descriptors;
    for (const descriptor& d : present)
        // A handler that was called before may have removed this one.
        if (std::ranges::any_of(descriptors, [&](const descriptor& now) { return now.id == d.id; }))
            d.handler->onEvent();
}

void poll_run_loop::call_due_timers()
{
    const auto now = clock::now();
    // Collected first: a timer may add or remove others when it is called.
    std::vector<std::uint64_t> due;
    for (const timer& t : timers)
        if (t.next <= now)
            due.push_back(t.id);
    for (const std::uint64_t id : due)
    {
        const auto found = std::ranges::find(timers, id, &timer::id);
        if (found == timers.end())
            continue;
        // Counted from now, so that missed periods are not made up for.
        found->next = now + found->period;
        found->handler->onTimer();
    }
}

} // namespace ov1

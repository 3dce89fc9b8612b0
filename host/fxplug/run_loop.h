// Runs the main thread's run loop from within our own modal loop.
#pragma once

namespace ov1
{

/// Processes the pending timers, sources and window events, then returns without waiting. Main thread.
void run_main_loop_once();

} // namespace ov1

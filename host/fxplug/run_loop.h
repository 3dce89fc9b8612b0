// The run loop of the main thread, turned from within a modal loop of ours.
#pragma once

namespace ov1
{

/// Works off what has arrived for timers, sources and the application's windows, and waits for nothing. Main thread.
void turn_run_loop_once();

} // namespace ov1

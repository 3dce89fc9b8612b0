// Ends the program on a signal without leaving unfinished files.
#pragma once

namespace ov1
{

/// From now on SIGINT, SIGTERM and SIGHUP remove all temporary files and end the process with exit_code::interrupted.
/// Signals that were ignored at the start stay ignored. A file size limit or a closed pipe no longer ends the process:
/// the write fails instead. Called once, before any other thread starts.
/// The thread that waits for the signals runs until the process ends.
void watch_interrupts();

} // namespace ov1

// Ends the program on a signal without leaving anything half done.
#pragma once

namespace ov1
{

/// From now on SIGINT, SIGTERM and SIGHUP remove every temporary file and end the process with exit_code::interrupted;
/// one that was ignored at the start stays so. A full disk or a gone reader no longer kills: writes fail instead.
/// Called once, before any other thread starts.
void watch_interrupts();

} // namespace ov1

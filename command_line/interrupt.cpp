#include "command_line/interrupt.h"

#include "command_line/exit_code.h"
#include "platform/pending_file.h"

#include <csignal>
#include <pthread.h>
#include <thread>

namespace ov1
{

namespace
{

bool is_ignored(int signal)
{
    struct sigaction current = {};
    return sigaction(signal, nullptr, &current) == 0 && current.sa_handler == SIG_IGN;
}

} // namespace

void watch_interrupts()
{
    // Ignored signals make write() fail with EFBIG or EPIPE, which is then reported like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t watched;
    sigemptyset(&watched);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        // nohup and shells in the background start programs with these signals ignored; that choice is respected.
        if (!is_ignored(signal))
            sigaddset(&watched, signal);
    // Blocked here, and so in every later thread: only the thread below receives them, and outside a signal handler it
    // may make any call.
    pthread_sigmask(SIG_BLOCK, &watched, nullptr);
    std::thread(
        [watched]
        {
            int signal = 0;
            sigwait(&watched, &signal);
            abandon_pending_files_and_exit(static_cast<int>(exit_code::interrupted));
        })
        .detach();
}

} // namespace ov1

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
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
    sigset_t watched;
    sigemptyset(&watched);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        if (!is_ignored(signal))
            sigaddset(&watched, signal);
    // Blocked here and so in every thread to come; only the watcher takes them, on which any call is allowed.
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

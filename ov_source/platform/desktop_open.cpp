#include "platform/desktop_open.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace ov1
{

namespace
{

/// Openers that were started and have not been waited for. Starting the next opener reaps those that have ended.
struct opener_list
{
    std::mutex mutex;
    std::vector<pid_t> running;

    /// Waits for children that have ended, so that none stays as a zombie.
    void reap()
    {
        std::erase_if(running, [](pid_t child) { return waitpid(child, nullptr, WNOHANG) != 0; });
    }
};

opener_list& openers()
{
    // Never destroyed: a thread may open a document during exit.
    static opener_list& list = *new opener_list;
    return list;
}

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool is_scheme_character(char c) { return is_letter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'; }

/// Starts a program from PATH and stores its process id. Does not wait for it.
bool spawn(const char* program, const std::string& argument, pid_t& child)
{
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    // The opener must not read our input or write between our lines.
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&files, descriptor, "/dev/null", O_RDWR, 0);
    sigset_t none;
    sigemptyset(&none);
    // Signals that this thread blocks must reach the opener.
    posix_spawnattr_setsigmask(&attributes, &none);
    // Signals that this process ignores get their default action again.
    sigset_t all;
    sigfillset(&all);
    posix_spawnattr_setsigdefault(&attributes, &all);
    // In its own process group, so that Ctrl-C in our terminal does not end the user's browser.
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);

    // Copies, because posix_spawnp takes pointers to writable characters.
    std::string name = program;
    std::string text = argument;
    const std::array<char*, 3> arguments = {name.data(), text.data(), nullptr};
    const int error = posix_spawnp(&child, program, &files, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0;
}

} // namespace

bool is_url(std::string_view text)
{
    const std::size_t colon = text.find(':');
    // A scheme begins with a letter, and something must follow the colon.
    if (colon == std::string_view::npos || colon + 1 == text.size() || !is_letter(text.front()))
        return false;
    const std::string_view scheme = text.substr(0, colon);
    const auto is_printable = [](char c) { return c > ' ' && c != 127; };
    return std::all_of(scheme.begin(), scheme.end(), is_scheme_character) &&
           std::all_of(text.begin(), text.end(), is_printable);
}

std::string opener_argument(std::string_view text)
{
    const bool needs_folder = !is_url(text) && !text.starts_with('/');
    return (needs_folder ? "./" : "") + std::string(text);
}

bool open_with_desktop(const std::string& text)
{
    if (text.empty())
        return false;
    // Held while spawning, so that every child is in the list before the next call reaps.
    const std::scoped_lock lock(openers().mutex);
    openers().reap();
    pid_t child = 0;
    if (!spawn("xdg-open", opener_argument(text), child))
        return false;
    openers().running.push_back(child);
    return true;
}

} // namespace ov1

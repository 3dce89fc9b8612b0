#include "command_line/console.h"

#include "command_line/failure_line.h"
#include "platform/plain_reason.h"

#include <cerrno>

namespace ov1
{

namespace
{

constexpr const char* erase_line = "\r\x1B[K"; // ECMA-48: carriage return, erase to the end of the line

} // namespace

void console::result(const std::string& text)
{
    const std::scoped_lock lock(mutex);
    erase_status();
    if (std::fwrite(text.data(), 1, text.size(), out) != text.size())
        write_error = errno;
    std::fputs(shown_status.c_str(), err);
}

void console::error(const failure& why) { line(prefix + failure_line(why)); }

void console::warning(const failure& what)
{
    if (!quiet)
        line(prefix + "warning: " + failure_line(what));
}

void console::note(const std::string& text)
{
    if (verbose && !quiet)
        line(prefix + text);
}

void console::raw_line(const std::string& text) { line(text); }

void console::line(const std::string& text)
{
    const std::scoped_lock lock(mutex);
    erase_status();
    // One call, so that the lines of several processes on one terminal stay whole.
    const std::string whole = text + '\n' + shown_status;
    std::fwrite(whole.data(), 1, whole.size(), err);
    std::fflush(err);
}

void console::status(const std::string& text)
{
    const std::scoped_lock lock(mutex);
    erase_status();
    shown_status = text;
    std::fputs(shown_status.c_str(), err);
    std::fflush(err);
}

void console::erase_status()
{
    if (!shown_status.empty())
        std::fputs(erase_line, err);
}

exit_code console::finish(exit_code code)
{
    status({});
    if (std::fflush(out) != 0)
        write_error = errno;
    // A closed pipe is no error to report: its reader, such as head, has read enough.
    if (write_error != 0 && write_error != EPIPE)
        error({failure_kind::cannot_write, "standard output", plain_reason(write_error), {}});
    return write_error == 0 || code != exit_code::done ? code : exit_code::cannot_write;
}

} // namespace ov1

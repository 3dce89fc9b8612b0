// Output of the program: results on stdout, everything else on stderr.
#pragma once

#include "command_line/exit_code.h"

#include <cstdio>
#include <mutex>
#include <string>

namespace ov1
{

/// Lines are written whole, from any thread. Every line except a result begins with the program's name.
class console
{
public:
    /// The streams must outlive the console, which never closes them. Tests give files of their own.
    explicit console(std::FILE* out = stdout, std::FILE* err = stderr, const std::string& program = "veridial")
        : prefix(program + ": ")
        , out(out)
        , err(err)
    {
    }

    /// Quiet suppresses all but errors and results; verbose adds notes. Set before other threads write.
    void set_quiet(bool on) { quiet = on; }
    void set_verbose(bool on) { verbose = on; }
    bool is_quiet() const { return quiet; }

    /// Writes to stdout; the text brings its own line feeds.
    void result(const std::string& text);
    /// Printed even when quiet. One line, whatever bytes its texts hold (failure_line).
    void error(const failure& why);
    /// Something that the user should know although the work continues; its kind is ignored.
    void warning(const failure& what);
    /// What the program does, with --verbose only.
    void note(const std::string& text);
    /// A line for other programs to read, without the program's name.
    void raw_line(const std::string& line);
    /// Shows a text below all lines until the next call replaces it; an empty text clears it. For terminals.
    void status(const std::string& text);

    /// Flushes the results. Returns the code that the program ends with: the given one, or cannot_write where the work
    /// is done but its results were lost.
    [[nodiscard]] exit_code finish(exit_code code);

private:
    void line(const std::string& text);
    void erase_status();

    const std::string prefix;
    std::FILE* out;
    std::FILE* err;
    bool quiet = false;
    bool verbose = false;
    std::mutex mutex;
    // What stands below the last line. Every other output erases it first and draws it again after.
    std::string shown_status;
    // The errno of a result that could not be written, or 0; reported by finish().
    int write_error = 0;
};

} // namespace ov1

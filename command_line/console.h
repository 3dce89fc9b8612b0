// The two streams of the program: results on one, everything else on the other.
#pragma once

#include "command_line/exit_code.h"

#include <cstdio>
#include <mutex>
#include <string>

namespace ov1
{

/// Lines come out whole, from any thread. Every line but a result begins with the program's name.
class console
{
public:
    explicit console(std::FILE* out = stdout, std::FILE* err = stderr, const std::string& program = "veridial")
        : prefix(program + ": ")
        , out(out)
        , err(err)
    {
    }

    /// Quiet leaves errors and results alone; verbose adds notes. Set before other threads speak.
    void set_quiet(bool on) { quiet = on; }
    void set_verbose(bool on) { verbose = on; }
    bool is_quiet() const { return quiet; }

    /// Text for the result stream, line feeds included.
    void result(const std::string& text);
    void error(const failure& why);
    /// Something that the user should know although the work goes on; its kind is ignored.
    void warning(const failure& what);
    /// What is being done, for those who asked.
    void note(const std::string& text);
    /// A line of a machine's protocol, without the program's name.
    void raw_line(const std::string& line);
    /// Shows a text below all lines until the next one replaces it; an empty one clears it. For terminals.
    void status(const std::string& text);

    /// Writes what is left of the results. Returns the code that the program ends with: its own, or cannot_write where
    /// it is done but its results were lost.
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
    std::string shown_status;
    int write_error = 0;
};

} // namespace ov1

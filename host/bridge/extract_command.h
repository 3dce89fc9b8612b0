// Command line of the service: without arguments it serves the host, with "--extractXML FOLDER" it writes the template.
#pragma once

#include <span>
#include <string>

namespace ov1
{

/// What the service does, decided by its arguments.
struct extract_command
{
    enum class action
    {
        serve,   ///< no arguments: serve the video host
        say,     ///< print the message as one line, then exit with the code
        extract, ///< write the template into the folder
    };

    action what = action::serve;
    std::string message; ///< of `say`
    int exit_code = 0;
    std::string folder; ///< of `extract`
};

/// Reads the arguments without the program's own name, as pairs of a key and a folder. The last pair counts. An odd
/// last argument is ignored.
extract_command read_extract_command(std::span<const std::string> arguments);

} // namespace ov1

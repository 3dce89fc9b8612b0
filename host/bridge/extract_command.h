// The command line of the service's second mode: "--extractXML" and a folder.
#pragma once

#include <span>
#include <string>

namespace ov1
{

/// What the arguments ask for.
struct extract_command
{
    enum class action
    {
        serve,   ///< no arguments: run as the host's service
        say,     ///< print the message as one line and end with the exit code
        extract, ///< write the template into the folder
    };

    action what = action::serve;
    std::string message;
    int exit_code = 0;
    std::string folder;
};

/// Reads the arguments behind the program's own name. They are taken in pairs of a key and a folder, and the last pair
/// holds; a last argument without a partner is not looked at.
extract_command read_extract_command(std::span<const std::string> arguments);

} // namespace ov1

#include "host/bridge/extract_command.h"

namespace ov1
{

namespace
{

// Compared with its case: build scripts pass exactly this text.
constexpr const char* key = "--extractXML";

/// A command that only prints a message and exits.
extract_command refusal(const char* message, int exit_code)
{
    return {extract_command::action::say, message, exit_code, {}};
}

} // namespace

extract_command read_extract_command(std::span<const std::string> arguments)
{
    if (arguments.empty())
        return {};
    // Whatever the one argument is; the usage line is no error.
    if (arguments.size() == 1)
        return refusal("Usage: --extractXML path-to-template-xml-folder", 0);

    // Stops before a last argument without a partner.
    std::string folder;
    for (std::size_t at = 0; at + 1 < arguments.size(); at += 2)
    {
        if (arguments[at] != key)
            return refusal("Invalid commandline arguments.", 1);
        // A later pair replaces an earlier one.
        folder = arguments[at + 1];
    }
    if (folder.empty())
        return refusal("No valid template folder provided.", 1);
    return {extract_command::action::extract, {}, 0, folder};
}

} // namespace ov1

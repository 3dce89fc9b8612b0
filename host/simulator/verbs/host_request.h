// What every verb of veridial-host is asked: a picture, values, documents.
#pragma once

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/exit_code.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

struct host_request
{
    std::vector<std::string> inputs;
    std::vector<std::string> settings;        ///< "Sky Strength=60"
    std::optional<std::string> document;      ///< to begin with
    std::optional<std::string> save_document; ///< what it has become
    bool overwrite = false;
};

/// Declares the options that all verbs share; the request must outlive the parsing.
void add_host_options(argument_parser& parser, host_request& request);

/// Checks that there is exactly one picture, and that the outputs may be written.
[[nodiscard]] std::vector<failure> settle_host_request(const host_request& request,
                                                       std::span<const std::string> outputs);

} // namespace ov1

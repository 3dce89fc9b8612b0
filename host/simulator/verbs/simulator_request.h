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

struct simulator_request
{
    std::vector<std::string> inputs;
    std::vector<std::string> settings;        ///< "Sky Strength=60"
    std::optional<std::string> document;      ///< to begin with
    std::optional<std::string> save_document; ///< what it has become
    bool overwrite = false;
};

/// Declares the options that all verbs share; the request must outlive the parsing.
void add_simulator_options(argument_parser& parser, simulator_request& request);

/// Checks that there is exactly one picture, and that the outputs may be written.
[[nodiscard]] std::vector<failure> check_simulator_request(const simulator_request& request,
                                                           std::span<const std::string> outputs);

} // namespace ov1

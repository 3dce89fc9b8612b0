// The arguments that all verbs of veridial-host share: a picture, values, documents.
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

/// As parsed; check_simulator_request checks it.
struct simulator_request
{
    std::vector<std::string> inputs;          ///< exactly one is valid
    std::vector<std::string> settings;        ///< "Sky Strength=60"
    std::optional<std::string> document;      ///< opened at the start
    std::optional<std::string> save_document; ///< written at the end
    bool overwrite = false;                   ///< replaces existing outputs
};

/// Declares the shared options. The request must outlive the parser.
void add_simulator_options(argument_parser& parser, simulator_request& request);

/// Fails unless there is exactly one picture and every output can be written.
[[nodiscard]] std::vector<failure> check_simulator_request(const simulator_request& request,
                                                           std::span<const std::string> outputs);

} // namespace ov1

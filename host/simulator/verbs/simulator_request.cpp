#include "host/simulator/verbs/simulator_request.h"

#include "command_line/output_plan.h"
#include "command_line/program.h"

namespace ov1
{

void add_simulator_options(argument_parser& parser, simulator_request& request)
{
    parser.positionals("INPUT", request.inputs, "the picture that the host shows");
    parser.group("Grade");
    parser.texts("-s,--set", request.settings, "NAME=VALUE",
                 "a value set in the inspector, such as \"Sky Strength=60\"");
    parser.group("Documents");
    parser.text("--document", request.document, "FILE", "opens a document of the host");
    parser.text("--save-document", request.save_document, "FILE", "saves the document at the end");
    parser.group("Output");
    parser.flag("-f,--overwrite", request.overwrite, "replaces what exists");
}

std::vector<failure> check_simulator_request(const simulator_request& request, std::span<const std::string> outputs)
{
    // Collected, so that the user sees all mistakes of a command line together.
    std::vector<failure> failures;
    if (request.inputs.size() != 1)
        failures.push_back({failure_kind::usage, {}, "one picture is needed", "veridial-host COMMAND PICTURE"});
    for (const std::string& path : outputs)
        if (const auto job = plan_output(path, {.overwrite = request.overwrite, .can_skip = false}); !job)
            failures.push_back(job.error());
    return failures;
}

} // namespace ov1

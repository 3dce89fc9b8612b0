#include "host/simulator/verbs/host_request.h"

#include "command_line/output_plan.h"
#include "command_line/program.h"

namespace ov1
{

void add_host_options(argument_parser& parser, host_request& request)
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

bool settle_host_request(const host_request& request, std::span<const std::string> outputs, console& out,
                         exit_code& code)
{
    std::vector<problem> problems;
    if (request.inputs.size() != 1)
        problems.push_back({exit_code::usage, {}, "one picture is needed", "veridial-host COMMAND PICTURE"});
    for (const std::string& path : outputs)
    {
        output_job job;
        const output_rules rules{.overwrite = request.overwrite, .can_skip = false};
        (void)plan_output(path, rules, job, problems); // what is wrong is among the problems
    }
    code = fail(problems, out);
    return problems.empty();
}

} // namespace ov1

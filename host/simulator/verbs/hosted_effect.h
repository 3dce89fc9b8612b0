// The effect in the simulated host, with a document and values as the command line asks for them.
#pragma once

#include "command_line/problem.h"
#include "host/simulator/simulated_host.h"
#include "host/simulator/verbs/host_request.h"

#include <string>
#include <vector>

namespace ov1
{

class hosted_effect
{
public:
    simulated_host& get() { return host; }

    /// Makes the instance, opens the document, adds the instance to it, then sets the values as a user would. On
    /// failure there is a problem for each thing that is wrong.
    [[nodiscard]] bool open(const host_request& request, std::vector<problem>& problems);

    /// The document as it is now, where the request names a file for it.
    [[nodiscard]] bool save(const host_request& request, problem& why);

private:
    bool read_document(const std::string& path, problem& why);
    bool apply(const std::vector<std::string>& settings, std::vector<problem>& problems);

    simulated_host host;
};

} // namespace ov1

// The effect in the simulated host, with a document and values as the command line asks for them.
#pragma once

#include "host/simulator/simulated_host.h"
#include "host/simulator/verbs/picture_file.h"
#include "host/simulator/verbs/simulator_request.h"
#include "shared/result.h"

#include <string>
#include <vector>

namespace ov1
{

class hosted_effect
{
public:
    simulated_host& get() { return host; }

    /// Makes the instance, opens the document, adds the instance to it, then sets the values as a user would. There
    /// is one failure for each thing that is wrong.
    [[nodiscard]] std::vector<failure> open(const simulator_request& request);

    /// Renders the picture of a file and writes it to the path.
    result<> render_to(const std::string& path, const picture_file& source, const tile_options& tiles, bool overwrite);

    /// The document as it is now, where the request names a file for it.
    result<> save(const simulator_request& request);

private:
    result<> read_document(const std::string& path);
    std::vector<failure> apply(const std::vector<std::string>& settings);

    simulated_host host;
};

} // namespace ov1

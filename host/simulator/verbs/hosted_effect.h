// The effect in the simulated host, with the document and values from the command line.
#pragma once

#include "host/simulator/simulated_host.h"
#include "host/simulator/verbs/picture_file.h"
#include "host/simulator/verbs/simulator_request.h"
#include "shared/result.h"

#include <string>
#include <vector>

namespace ov1
{

/// One instance of the effect. Failures carry the subject as the user wrote it.
class hosted_effect
{
public:
    /// Valid as long as this object.
    simulated_host& get() { return host; }

    /// Creates the instance, opens the document, adds the instance to it, then sets the values as the user's edits.
    /// Returns one failure for each invalid value; empty when everything worked.
    [[nodiscard]] std::vector<failure> open(const simulator_request& request);

    /// Renders the picture of a file and writes it to the path.
    result<> render_to(const std::string& path, const picture_file& source, const tile_options& tiles, bool overwrite);

    /// Writes the document to the request's file; does nothing when it names none.
    result<> save(const simulator_request& request);

private:
    /// The document's values for the host; a failure has the path as its subject.
    result<> read_document(const std::string& path);
    /// Makes all settings, or none if one cannot be read.
    std::vector<failure> apply(const std::vector<std::string>& settings);

    simulated_host host;
};

} // namespace ov1

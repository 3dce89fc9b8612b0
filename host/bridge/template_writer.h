// Writes the effect template and its two thumbnails into a folder.
#pragma once

#include "shared/result.h"

#include <optional>
#include <string>

namespace ov1
{

/// What the template needs to know of the program's own bundle.
struct bundle_facts
{
    /// How far the search for the effect's entry in the bundle's properties got.
    enum class listing
    {
        no_properties, ///< the bundle has no properties
        no_list,       ///< they contain no array "ProPlugPlugInList"
        no_entry,      ///< the array is empty
        no_uuid,       ///< its first entry has no "uuid"
        complete,      ///< found; `uuid` is valid
    };

    std::optional<std::string> path; ///< of the bundle, without a separator at its end; empty when unknown
    listing plugin = listing::no_properties;
    std::string uuid;
};

/// Makes the folder if it is missing. Writes "small.png" and "large.png" into it, copied from the bundle's resources,
/// and a ".moef" document named after the component, "Veridial.moef". The reason of a failure is the exact line that
/// the service prints; build scripts compare it. Files written before the failure stay.
result<> write_template(const bundle_facts& bundle, const std::string& folder);

} // namespace ov1

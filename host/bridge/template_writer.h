// Writes the effect template and its thumbnails into a folder.
#pragma once

#include <optional>
#include <string>

namespace ov1
{

/// What the program's own bundle says.
struct bundle_facts
{
    /// How far down its properties the entry of the effect was found.
    enum class listing
    {
        no_properties, ///< the bundle has none
        no_list,       ///< no "ProPlugPlugInList"
        no_entry,      ///< an empty one
        no_uuid,
        complete,
    };

    std::optional<std::string> path; ///< of the bundle, without a separator at its end; nothing if it has none
    listing plugin = listing::no_properties;
    std::string uuid;
};

/// Makes the folder if it is missing and writes "Veridial.moef", named as the component is, "small.png" and "large.png"
/// into it, taking the pictures from the bundle's resources. On failure gives the line that says what is wrong; what
/// was written before stays.
[[nodiscard]] bool write_template(const bundle_facts& bundle, const std::string& folder, std::string& failure);

} // namespace ov1

#include "standalone/jobs/preset_source.h"

#include "command_line/edit_distance.h"

#include <algorithm>
#include <unistd.h>

namespace ov1
{

namespace
{

// Read like a file, so that no code has to treat it apart.
constexpr const char* standard_input = "/dev/stdin";

/// A name with neither is looked up among the presets, even if a file of that name exists.
bool is_path(const std::string& name) { return name.find('/') != std::string::npos || name.ends_with(".json"); }

bool contains(const std::vector<std::string>& names, const std::string& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace

result<preset_listing> list_presets(preset_manager& manager)
{
    preset_listing found;
    if (!manager.getPresets(found.own))
        return failure{failure_kind::unreadable, manager.get_preset_path(), "the presets cannot be listed"};
    // A build may have no bundled presets: that is no failure.
    found.bundled = manager.get_bundled_presets();
    return found;
}

result<preset_place> find_preset(preset_manager& manager, const std::string& name)
{
    if (name == "-")
        return preset_place{preset_origin::standard_input, standard_input};
    if (is_path(name))
        return preset_place{preset_origin::file, name};
    auto listing = list_presets(manager);
    if (!listing)
        return listing.error();
    const auto place_of = [&](preset_origin origin, result<std::string> file) -> result<preset_place>
    {
        if (!file)
            return about(name, file.error());
        return preset_place{origin, *std::move(file)};
    };
    // The user's own preset hides a bundled one of the same name.
    if (contains(listing->own, name))
        return place_of(preset_origin::own, manager.get_preset_file(name));
    if (contains(listing->bundled, name))
        return place_of(preset_origin::bundled, manager.get_bundled_preset_file(name));
    listing->own.insert(listing->own.end(), listing->bundled.begin(), listing->bundled.end());
    const std::string near = did_you_mean(name, listing->own);
    return failure{failure_kind::unreadable, name, "no such preset",
                   near.empty() ? "\"veridial preset list\" shows them" : near};
}

result<preset_content> read_preset(preset_manager& manager, const std::string& name)
{
    const auto place = find_preset(manager, name);
    if (!place)
        return place.error();
    auto content = read_preset_file(place->file);
    if (content)
        return content;
    // Only a path can be missing: listed presets exist, and what stdin holds is content.
    const bool is_unreadable = place->origin == preset_origin::file && access(place->file.c_str(), R_OK) != 0;
    return failure{is_unreadable ? failure_kind::unreadable : failure_kind::invalid_grade, name,
                   content.error().reason};
}

} // namespace ov1

#include "standalone/jobs/preset_source.h"

#include "command_line/edit_distance.h"

#include <algorithm>
#include <unistd.h>

namespace ov1
{

namespace
{

constexpr const char* standard_input = "/dev/stdin";

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
    // A build without bundled presets has none: that is no failure.
    manager.get_bundled_presets(found.bundled);
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
    failure why{failure_kind::unreadable, name, "no such preset"};
    preset_place place;
    if (contains(listing->own, name))
        place = {preset_origin::own, manager.get_preset_file(name, why.reason)};
    else if (contains(listing->bundled, name))
        place = {preset_origin::bundled, manager.get_bundled_preset_file(name, why.reason)};
    else
    {
        listing->own.insert(listing->own.end(), listing->bundled.begin(), listing->bundled.end());
        why.hint = did_you_mean(name, listing->own);
        if (why.hint.empty())
            why.hint = "\"veridial preset list\" shows them";
    }
    if (place.file.empty())
        return why;
    return place;
}

result<preset_content> read_preset(preset_manager& manager, const std::string& name)
{
    const auto place = find_preset(manager, name);
    if (!place)
        return place.error();
    preset_content content;
    failure why{failure_kind::invalid_grade, name};
    if (read_preset_file(place->file, content, why.reason))
        return content;
    if (place->origin == preset_origin::file && access(place->file.c_str(), R_OK) != 0)
        why.kind = failure_kind::unreadable;
    return why;
}

} // namespace ov1

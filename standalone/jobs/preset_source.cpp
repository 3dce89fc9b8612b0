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

bool list_presets(preset_manager& manager, preset_listing& listing, problem& why)
{
    preset_listing found;
    if (!manager.getPresets(found.own))
    {
        why = {exit_code::unreadable, manager.get_preset_path(), "the presets cannot be listed", {}};
        return false;
    }
    // A build without bundled presets has none: that is no failure.
    manager.get_bundled_presets(found.bundled);
    listing = std::move(found);
    return true;
}

bool find_preset(preset_manager& manager, const std::string& name, preset_place& place, problem& why)
{
    if (name == "-")
    {
        place = {preset_origin::standard_input, standard_input};
        return true;
    }
    if (is_path(name))
    {
        place = {preset_origin::file, name};
        return true;
    }
    preset_listing listing;
    if (!list_presets(manager, listing, why))
        return false;
    why = {exit_code::unreadable, name, "no such preset", {}};
    if (contains(listing.own, name))
        place = {preset_origin::own, manager.get_preset_file(name, why.reason)};
    else if (contains(listing.bundled, name))
        place = {preset_origin::bundled, manager.get_bundled_preset_file(name, why.reason)};
    else
    {
        listing.own.insert(listing.own.end(), listing.bundled.begin(), listing.bundled.end());
        why.hint = did_you_mean(name, listing.own);
        if (why.hint.empty())
            why.hint = "\"veridial preset list\" shows them";
        return false;
    }
    return !place.file.empty();
}

bool read_preset(preset_manager& manager, const std::string& name, preset_content& content, problem& why)
{
    preset_place place;
    if (!find_preset(manager, name, place, why))
        return false;
    why = {exit_code::invalid_grade, name, {}, {}};
    if (read_preset_file(place.file, content, why.reason))
        return true;
    if (place.origin == preset_origin::file && access(place.file.c_str(), R_OK) != 0)
        why.code = exit_code::unreadable;
    return false;
}

} // namespace ov1

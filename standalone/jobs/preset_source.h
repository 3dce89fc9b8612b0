// Finds the presets that a command line names.
#pragma once

#include "presets/preset_manager.h"
#include "presets/preset_reader.h"
#include "shared/result.h"

#include <string>
#include <vector>

namespace ov1
{

/// Where a preset is found.
enum class preset_origin
{
    own,            ///< a user preset
    bundled,        ///< a bundled preset; a user preset of the same name is preferred
    file,           ///< a path: with a "/" or ending in ".json"
    standard_input, ///< "-"
};

/// The file of a preset.
struct preset_place
{
    preset_origin origin = preset_origin::own;
    std::string file; ///< "/dev/stdin" for the standard input
};

/// Names without their extension, as "-p" takes them.
struct preset_listing
{
    std::vector<std::string> own;
    std::vector<std::string> bundled;
};

/// The names of all presets, each list sorted by bytes.
/// Fails where the folder of user presets cannot be read; a build without bundled presets is no failure.
result<preset_listing> list_presets(preset_manager& manager);

/// Finds the file of a preset. The failure's hint suggests a similar name. A path is returned without a look at its
/// file.
result<preset_place> find_preset(preset_manager& manager, const std::string& name);

/// Finds, reads and checks a preset; applies nothing.
/// A file that is missing is unreadable, one that is no preset an invalid grade; the name is the subject.
result<preset_content> read_preset(preset_manager& manager, const std::string& name);

} // namespace ov1

// Presets as a command line names them.
#pragma once

#include "command_line/problem.h"
#include "presets/preset_manager.h"
#include "presets/preset_reader.h"

#include <string>
#include <vector>

namespace ov1
{

/// Where the name of a preset leads.
enum class preset_origin
{
    own,            ///< one of the user's
    bundled,        ///< one that comes with the product; the user's own of that name goes before
    file,           ///< a path: with a "/" or ending in ".json"
    standard_input, ///< "-"
};

/// A preset by its name, which may be a path.
struct preset_place
{
    preset_origin origin = preset_origin::own;
    std::string file; ///< empty for the standard input
};

struct preset_listing
{
    std::vector<std::string> own;
    std::vector<std::string> bundled;
};

/// The names there are, each list in the order of its bytes.
[[nodiscard]] bool list_presets(preset_manager& manager, preset_listing& listing, problem& why);

/// Finds what a name stands for. On failure the problem names a near one. A path is not looked into.
[[nodiscard]] bool find_preset(preset_manager& manager, const std::string& name, preset_place& place, problem& why);

/// Finds, reads and checks a preset whole; nothing is applied.
[[nodiscard]] bool read_preset(preset_manager& manager, const std::string& name, preset_content& content, problem& why);

} // namespace ov1

// Presets as a command line names them.
#pragma once

#include "presets/preset_manager.h"
#include "presets/preset_reader.h"
#include "shared/result.h"

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
result<preset_listing> list_presets(preset_manager& manager);

/// Finds the file of a preset. The failure's hint suggests a similar name. A path is returned without a look at its
/// file.
result<preset_place> find_preset(preset_manager& manager, const std::string& name);

/// Finds, reads and checks a preset whole; nothing is applied.
result<preset_content> read_preset(preset_manager& manager, const std::string& name);

} // namespace ov1

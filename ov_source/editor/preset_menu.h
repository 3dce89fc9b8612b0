// The list of presets that the toolbar offers, and what choosing one does.
#pragma once

#include "presets/preset_manager.h"

#include <string>
#include <vector>

namespace ov1
{

struct listed_preset
{
    std::string name;
    bool is_bundled = false; ///< comes with the product and cannot be deleted

    bool operator==(const listed_preset&) const = default;
};

/// The user's own in alphabetical order, then the bundled ones. False where the user's folder cannot be read; the
/// bundled ones are then listed all the same.
bool list_presets(preset_manager& manager, std::vector<listed_preset>& entries);

/// Replaces the grade as one undo step; the reason of a failure is one line, and the grade is as it was.
bool load_listed_preset(icomponent_v1& component, preset_manager& manager, const listed_preset& entry,
                        std::string& reason);

} // namespace ov1

// The list of presets that the toolbar offers, and what choosing one does.
#pragma once

#include "presets/preset_manager.h"

#include <string>
#include <vector>

namespace ov1
{

struct preset_choice
{
    std::string name;
    bool is_bundled = false; ///< comes with the product and cannot be deleted

    bool operator==(const preset_choice&) const = default;
};

/// The user's own in alphabetical order, then the bundled ones. False where the user's folder cannot be read; the
/// bundled ones are then listed all the same.
bool list_presets(preset_manager& manager, std::vector<preset_choice>& entries);

/// Replaces the grade as one undo step; the reason of a failure is one line, and the grade is as it was.
bool load_preset_choice(icomponent_v1& component, preset_manager& manager, const preset_choice& entry,
                        std::string& reason);

} // namespace ov1

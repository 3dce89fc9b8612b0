#include "editor/toolbar/preset_menu.h"

#include "framework/icomponent_v1.h"
#include "presets/preset_reader.h"

#include <algorithm>

namespace ov1
{

bool list_presets(preset_manager& manager, std::vector<preset_choice>& entries)
{
    entries.clear();
    std::vector<std::string> own, bundled;
    const bool readable = manager.getPresets(own);
    if (!manager.get_bundled_presets(bundled))
        bundled.clear();
    std::ranges::sort(own);
    for (const std::string& name : own)
        entries.push_back({name, false});
    for (const std::string& name : bundled)
        entries.push_back({name, true});
    return readable;
}

bool load_preset_choice(icomponent_v1& component, preset_manager& manager, const preset_choice& entry,
                        std::string& reason)
{
    const std::string file = entry.is_bundled ? manager.get_bundled_preset_file(entry.name, reason)
                                              : manager.get_preset_file(entry.name, reason);
    preset_content content;
    // Read before the history moves: a preset that is refused leaves no empty step, and what can be redone.
    if (file.empty() || !read_preset_file(file, content, reason) || !is_preset_accepted(content, component, reason))
        return false;
    component.save_state(true);
    const bool loaded = apply_preset(content, component, reason);
    component.save_state(false);
    return loaded;
}

} // namespace ov1

#include "editor/preset_menu.h"

#include "framework/icomponent_v1.h"

#include <algorithm>

namespace ov1
{

bool list_presets(preset_manager& manager, std::vector<listed_preset>& entries)
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

bool load_listed_preset(icomponent_v1& component, preset_manager& manager, const listed_preset& entry,
                        std::string& reason)
{
    component.save_state(true);
    const bool loaded =
        entry.is_bundled ? manager.load_bundled_preset(entry.name, reason) : manager.load_preset(entry.name, reason);
    component.save_state(false);
    return loaded;
}

} // namespace ov1

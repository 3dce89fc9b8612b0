#include "editor/preset_browser.h"

#include "vstgui/lib/cframe.h"

#include <algorithm>
#include <utility>

namespace ov1
{

preset_browser::preset_browser(VSTGUI::CFrame& frame, preview_view& preview, COVPluginToolbar& toolbar,
                               language_id language)
    : frame(frame)
    , preview(preview)
    , toolbar(toolbar)
    , language(language)
{
}

preset_browser::~preset_browser() { close(); }

void preset_browser::toggle(const VSTGUI::CRect& place)
{
    if (panel)
        close();
    else
        open(place);
}

void preset_browser::open(const VSTGUI::CRect& place)
{
    preset_panel_content content;
    toolbar.listPresets(content.presets, content.files);
    const auto& current = toolbar.getCurrentPreset();
    const auto found = current ? std::ranges::find(content.presets, *current) : content.presets.end();
    if (found != content.presets.end())
        content.current = static_cast<std::size_t>(found - content.presets.begin());
    content.frame = preview.getBefore();
    content.screen_scale = frame.getZoom();

    const auto presets = content.presets;
    preset_panel_events events;
    events.hovered = [this](std::shared_ptr<const row_renderer> renderer) { preview.showTrial(std::move(renderer)); };
    events.chosen = [this, presets](std::size_t chosen) { to_load = presets[chosen]; };
    panel = new preset_panel(place, std::move(content), std::move(events), language);
    frame.addView(panel);
}

void preset_browser::close()
{
    if (!panel)
        return;
    preview.showTrial(nullptr);
    frame.removeView(std::exchange(panel, nullptr));
}

void preset_browser::idle()
{
    if (panel)
        panel->idle();
    if (const auto chosen = std::exchange(to_load, {}))
    {
        close();
        toolbar.loadPreset(*chosen);
    }
}

} // namespace ov1

#include "editor/presets/preset_browser.h"

#include "vstgui/lib/events.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

preset_browser::preset_browser(CFrame& frame, preview_view& preview, preset_actions& presets, language_id language)
    : frame(frame)
    , preview(preview)
    , presets(presets)
    , language(language)
{
}

preset_browser::~preset_browser() noexcept { close(); }

void preset_browser::toggle(const CRect& place)
{
    if (panel)
        close();
    else
        open(place);
}

void preset_browser::open(const CRect& place)
{
    preset_panel_content content;
    preset_list found_presets = presets.list();
    content.presets = std::move(found_presets.choices);
    content.files = std::move(found_presets.files);
    const auto& current = presets.get_session().get_current();
    // The current preset is not in the list if its file was removed outside the editor.
    const auto found = current ? std::ranges::find(content.presets, *current) : content.presets.end();
    if (found != content.presets.end())
        content.current = static_cast<std::size_t>(found - content.presets.begin());
    content.frame = preview.get_before();
    content.screen_scale = frame.getZoom();

    // A copy: the content is moved into the panel.
    const auto choices = content.presets;
    preset_panel_events events;
    events.on_hover = [this](std::shared_ptr<const row_renderer> renderer) { preview.show_trial(std::move(renderer)); };
    events.on_choice = [this, choices](std::size_t chosen) { to_load = choices[chosen]; };
    panel = new preset_panel(place, std::move(content), std::move(events), language);
    frame.addView(panel);
    frame.registerKeyboardHook(this); // called before the search field's own hook, which passes its keys on
}

void preset_browser::close()
{
    if (!panel)
        return;
    is_to_close = false;
    frame.unregisterKeyboardHook(this);
    // The preview shows the grade again and no trial.
    preview.show_trial(nullptr);
    frame.removeView(std::exchange(panel, nullptr));
}

void preset_browser::onKeyboardEvent(KeyboardEvent& event, CFrame*)
{
    // While a question is open, Escape belongs to the question.
    if (event.type != EventType::KeyDown || event.virt != VirtualKey::Escape || frame.getModalView())
        return;
    is_to_close = true;
    event.consumed = true;
}

void preset_browser::idle()
{
    if (panel)
        panel->idle();
    // The panel is closed first, so that a message about a failure is not hidden by it.
    if (const auto chosen = std::exchange(to_load, {}))
    {
        close();
        presets.load(*chosen);
    }
    else if (is_to_close)
        close();
}

} // namespace ov1

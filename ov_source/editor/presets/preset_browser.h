// Opens the preset panel over the control panel, previews the preset under the pointer, and loads the chosen one.
#pragma once

#include "editor/presets/preset_panel.h"
#include "editor/preview/preview_view.h"
#include "editor/toolbar/preset_actions.h"

#include "vstgui/lib/cframe.h"

namespace ov1
{

/// Escape closes the panel, at the next idle. Belongs to one editor; frame, preview and actions outlive it.
class preset_browser : public VSTGUI::IKeyboardHook
{
public:
    preset_browser(VSTGUI::CFrame& frame, preview_view& preview, preset_actions& presets, language_id language);
    ~preset_browser() noexcept override;
    preset_browser(const preset_browser&) = delete;
    preset_browser& operator=(const preset_browser&) = delete;

    /// Opens the panel at a place of the frame; closes it if it is open.
    void toggle(const VSTGUI::CRect& place);
    /// Ends the trial in the preview and removes the panel. Does nothing while closed.
    void close();
    bool is_open() const { return panel != nullptr; }
    /// To be called several times a second. Shows new pictures, and carries out what the panel's events asked for.
    void idle();
    /// Consumes Escape, except while a question is open.
    void onKeyboardEvent(VSTGUI::KeyboardEvent& event, VSTGUI::CFrame* of_frame) override;
    /// Null while closed.
    preset_panel* get_panel() const { return panel; }

private:
    /// Lists the presets anew at every opening, with the frame as the preview shows it ungraded.
    void open(const VSTGUI::CRect& place);

    VSTGUI::CFrame& frame;
    preview_view& preview;
    preset_actions& presets;
    const language_id language;
    preset_panel* panel = nullptr; ///< owned by the frame
    // Set by an event of the panel and carried out at idle: the panel must not be removed during its own event.
    std::optional<preset_choice> to_load;
    bool is_to_close = false;
};

} // namespace ov1

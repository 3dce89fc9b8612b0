// The effect's editor window: preview on the left, toolbar and control panel on the right.
#pragma once

#include "editor/editor_memory.h"
#include "editor/editor_views.h"
#include "editor/panel/panel_stops.h"
#include "framework/preview_sink.h"
#include "framework/view/cview_v1.h"

#include "vstgui/lib/cframe.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace ov1
{

class preset_browser;
class discard_keys;
class panel_input;
enum class key_action;
class tooltip_layer;

/// Connects the views with the component: controls with parameters, gestures with undo steps, keys with actions. The
/// component is held weakly; without it every callback does nothing. Belongs to the editor's thread, except
/// set_control_from_parameter, is_open, is_editing and set_preview_image.
class veridial_ui : public cview_v1, public preview_sink, public VSTGUI::VSTGUIEditorInterface
{
public:
    static constexpr uid ifc_id = make_uid("veridial_ui");

    explicit veridial_ui(std::weak_ptr<icomponent_v1> component);
    ~veridial_ui() override;

    bool query_interface(const std::string& name, iobject** out) override;
    /// The last size of the window if it fits the screen, else the size that suits the screen. In screen pixels.
    rect get_rect() const override;
    /// Also switches the bypass off, so that closing never leaves the effect bypassed.
    void close() override;
    /// To be called several times a second: processes the window's events and updates its parts. Always true.
    bool idle() override;
    /// Builds the whole window; nothing if the toolkit cannot open its frame.
    void init_view() override;

    // A control's tag is its parameter's uid, a pad's tag is that of its angle.
    void valueChanged(VSTGUI::CControl* control) override;
    void controlBeginEdit(VSTGUI::CControl* control) override;
    void controlEndEdit(VSTGUI::CControl* control) override;

    /// The graded frame, for preview and scopes, which copy it. Ignored while no window is built.
    void set_preview_image(image& picture) override;
    /// The same frame before the grade, for the preview only.
    void set_preview_source(const image& picture) override;
    /// Adds a choice of frames to the bar; `chosen` gets an index below count.
    void offer_frames(int count, std::function<void(int frame)> chosen) override;

    /// Sets a random look; see randomize_look.
    void inspire_randomize();
    /// Restores the state at opening, and closes.
    void discard_and_close();
    /// Called by COVImagePreview.
    void colour_picked(const std::optional<picked_colour>& colour);

    /// Shows or hides the scopes beside the preview. They count from the next rendered frame on.
    void show_scopes(bool shown);
    scopes_panel& get_scopes() { return *views.scopes; }

    /// Builds the frame for a size in points without opening it in a window: for tests and pictures of the editor.
    void build_frame(double new_width, double new_height);
    VSTGUI::CFrame* getFrame() const override { return frame; }
    /// The frame of the open editor that was opened last; null without one.
    static VSTGUI::CFrame* get_open_frame();
    const panel_controls& get_controls() const { return views.controls; }
    panel_input& get_input() const { return *input; }
    std::chrono::system_clock::time_point get_creation_time() const { return created; }

protected:
    /// Shows a parameter's value on its control. Called on the editor's thread.
    void update_control(iparameter_v1& parameter, bool edit) override;
    /// Called when the inside of the window has another size, in screen pixels.
    void resize(int new_width, int new_height);

private:
    /// The host's language; the default one without a host.
    language_id language() const;
    /// Sets what the views call when they are used.
    void connect_views();
    /// Places the views for the present size and redraws the window.
    void lay_out_views();
    /// Closes the frame, which deletes the views; before it, everything that refers to them.
    void drop_frame();
    /// Writes window size, split, scopes and export folder to the settings.
    void remember();
    /// Carries out every action that is not the panel's own.
    void act(key_action action);
    /// inspire_randomize as one undo step with a name.
    void inspire();
    /// Asks the host for the current frame again, for the scopes. Does nothing without a host.
    void ask_for_render();

    const std::chrono::system_clock::time_point created = std::chrono::system_clock::now();
    double scale = 1; ///< screen pixels per point
    editor_memory memory = recall_editor_memory();
    double width = 0; ///< of the frame, in points
    double height = 0;
    editor_views views;
    std::vector<panel_stop> stops; ///< of the views' controls
    std::unique_ptr<preset_browser> browser;
    std::unique_ptr<discard_keys> keys;
    std::unique_ptr<panel_input> input;
    std::unique_ptr<tooltip_layer> tooltips;
};

} // namespace ov1

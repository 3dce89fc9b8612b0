// The effect's editor window: preview on the left; toolbar and the panel of wheels on the right.
#pragma once

#include "editor/editor_memory.h"
#include "editor/panel/control_binding.h"
#include "editor/preview/cov_image_preview.h"
#include "framework/preview_sink.h"
#include "framework/view/cview_v1.h"

#include "vstgui/lib/cframe.h"

#include <chrono>
#include <memory>

namespace ov1
{

class COVPluginToolbar;
class preset_browser;
class preview_bar;
class scopes_panel;
class discard_keys;
class editor_hand;
enum class key_action;
class tooltip_layer;

/// A control's tag is its parameter's uid, a pad's is that of its angle. Belongs to the editor's thread, but for
/// set_control_from_parameter, is_open, is_editing and set_preview_image.
class veridial_ui : public cview_v1, public preview_sink, public VSTGUI::VSTGUIEditorInterface
{
public:
    static constexpr uid ifc_id = make_uid("veridial_ui");

    explicit veridial_ui(std::weak_ptr<icomponent_v1> component);
    ~veridial_ui() override;

    bool query_interface(const std::string& name, iobject** out) override;
    /// The size that the window had last, where it fits the screen; else the one that suits the screen.
    rect get_rect() const override;
    /// Switches the bypass off, so that closing never leaves the effect bypassed.
    void close() override;
    bool idle() override;
    /// Builds the whole window; nothing where the toolkit cannot open its frame.
    void init_view() override;
    void set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit) override;

    void valueChanged(VSTGUI::CControl* control) override;
    void controlBeginEdit(VSTGUI::CControl* control) override;
    void controlEndEdit(VSTGUI::CControl* control) override;

    void set_preview_image(image& picture) override;
    void set_preview_source(const image& picture) override;
    void offer_frames(int count, std::function<void(int frame)> chosen) override;

    /// A random look; see randomize_look.
    void inspire_randomize();
    /// Goes back to the state at opening and closes.
    void discard_and_close();
    /// For COVImagePreview.
    void colour_picked(const std::optional<picked_colour>& colour);

    /// Beside the preview; shown at the next frame that is rendered.
    void show_scopes(bool shown);
    scopes_panel& get_scopes() { return *scopes; }

    /// The frame is built but opened in no window: for tests and pictures of the editor.
    void build_frame(double width, double height);
    VSTGUI::CFrame* getFrame() const override { return frame; }
    /// The frame of the editor that was opened last and is open still; null without one.
    static VSTGUI::CFrame* get_open_frame();
    const panel_controls& get_controls() const { return controls; }
    editor_hand& get_hand() const { return *hand; }
    std::chrono::system_clock::time_point get_creation_time() const { return created; }

protected:
    /// The window's inside has become so large, in screen pixels.
    void resize(int width, int height);

private:
    language_id language() const;
    void drop_frame();
    void add_preview(double width, double height);
    void add_toolbar(double width);
    void add_hand(VSTGUI::CViewContainer& panel);
    void act(key_action action);
    void inspire();
    void add_column(double width, double height);
    void add_scopes(double height);
    void ask_for_render();
    void lay_out(double width, double height);
    void remember();

    const std::chrono::system_clock::time_point created = std::chrono::system_clock::now();
    double scale = 1;
    editor_memory memory = recall_editor_memory();
    COVImagePreview<veridial_ui>* preview = nullptr;
    COVScrollView* preview_scroller = nullptr;
    VSTGUI::CScrollView* column = nullptr;
    COVPluginToolbar* toolbar = nullptr;
    preview_bar* bar = nullptr;
    scopes_panel* scopes = nullptr;
    double width = 0; ///< of the frame, in points
    double height = 0;
    panel_controls controls;
    std::vector<panel_stop> stops; ///< of the controls; they outlive all that looks at them
    std::unique_ptr<preset_browser> browser;
    std::unique_ptr<discard_keys> keys;
    std::unique_ptr<editor_hand> hand;
    std::unique_ptr<tooltip_layer> tooltips;
};

} // namespace ov1

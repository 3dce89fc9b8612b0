#include "editor/veridial_ui.h"

#include "editor/controls/modal/tooltip_layer.h"
#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/reset_click.h"
#include "editor/discard_keys.h"
#include "editor/panel/control_binding.h"
#include "editor/panel_input.h"
#include "editor/presets/preset_browser.h"
#include "editor/scopes/scopes_text.h"
#include "framework/ihost_v1.h"
#include "framework/view/toolkit_guard.h"
#include "framework/view/view_size.h"
#include "platform/iutils.h"
#include "presets/random_look.h"
#include "shared/image.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr std::uint32_t tooltip_delay_ms = 4000;
constexpr const char* random_look_label = "{en:Random look}{de:Zufälliger Look}";
/// During a drag the scopes count every second row; when it ends they count all.
constexpr std::size_t scope_rows_while_dragging = 2;
constexpr float least_value_of_a_press = 0.5f;

std::uint64_t now_ms()
{
    const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(since_start).count());
}

/// The frames of all open editors, the latest last. Only for the editor's thread.
std::vector<CFrame*>& open_frames()
{
    static std::vector<CFrame*> frames;
    return frames;
}

} // namespace

veridial_ui::veridial_ui(std::weak_ptr<icomponent_v1> component)
    : cview_v1(std::move(component))
{
}

veridial_ui::~veridial_ui() { close(); }

language_id veridial_ui::language() const
{
    const auto component = get_component();
    const auto host = component ? component->get_host() : nullptr;
    return host ? host->get_language() : language_id{};
}

bool veridial_ui::query_interface(const std::string& name, iobject** out)
{
    return answer_query(ifc_id, static_cast<cview_v1*>(this), name, out);
}

rect veridial_ui::get_rect() const
{
    const rect suitable = cview_v1::get_rect();
    int width = 0, height = 0;
    iutils::get_instance().get_screen_dimensions(nullptr, width, height);
    const auto lies_within = [](int length, int least, int most) { return length >= least && length <= most; };
    // The size may have been kept on a larger screen.
    const bool fits = lies_within(memory.window_width, least_view_width, width) &&
                      lies_within(memory.window_height, least_view_height, height);
    return fits ? rect{0, 0, memory.window_width, memory.window_height} : suitable;
}

void veridial_ui::remember()
{
    memory.split = views.preview->get_split();
    memory.last_folder = views.toolbar->getLutExport().get_last_folder();
    memory.scopes = scope_choice_text(views.scopes->get_choice());
    keep_editor_memory(memory);
}

void veridial_ui::init_view()
{
    scale = iutils::get_instance().get_dpi_scale();
    const rect size = get_rect();
    const auto window = get_window();
    build_frame(size.width / scale, size.height / scale);
    if (!window || !toolkit_guard::open_frame(*frame, window->get_native_handle()))
        return drop_frame();
    open_frames().push_back(frame);
    // The views are laid out in points: the zoom maps them to screen pixels.
    frame->setZoom(scale);
    window->set_resize_listener([this](int width, int height) { resize(width, height); });
    views.toolbar->setWindow(window);
}

CFrame* veridial_ui::get_open_frame() { return open_frames().empty() ? nullptr : open_frames().back(); }

void veridial_ui::build_frame(double new_width, double new_height)
{
    width = new_width;
    height = new_height;
    CControl::CheckDefaultValueEventFunc = leave_resets_to_controls;
    frame = new CFrame(CRect(0, 0, width, height), this);
    frame->setBackgroundColor(style::background);
    frame->setFocusColor(style::accent); // also the background of selected text
    frame->enableTooltips(true, tooltip_delay_ms);
    views = make_editor_views(*frame, width, height, {*this, get_component(), get_window(), language(), memory});
    connect_views();
    if (const auto component = get_component())
        // Before the input, which keeps a reference to them.
        stops = order_panel_stops(*component, views.controls);
    input =
        std::make_unique<panel_input>(*frame, *views.column, *views.panel, stops, language(),
                                      panel_input_links{[this] { return get_component(); }, [this] { begin_gesture(); },
                                                        [this] { end_gesture(); }, [this](key_action a) { act(a); }});
    browser = std::make_unique<preset_browser>(*frame, *views.preview, views.toolbar->getPresets(), language());
    keys = std::make_unique<discard_keys>(*frame, [this] { discard_and_close(); });
    lay_out_views();
    tooltips = std::make_unique<tooltip_layer>(*frame, tooltip_delay_ms);
}

void veridial_ui::connect_views()
{
    views.preview->setOwner(*this);
    views.scopes->set_frame_listener([this] { ask_for_render(); });
    views.bar->offer_scopes(memory.shows_scopes, [this](bool shown) { show_scopes(shown); }, language());
    views.toolbar->setPresetChooser([this] { browser->toggle(views.column->getViewSize()); });
    views.toolbar->setDiscardAction([this] { discard_and_close(); });
    register_parameter_change_listener(views.toolbar);
}

void veridial_ui::show_scopes(bool shown)
{
    memory.shows_scopes = shown;
    views.scopes->setVisible(shown);
    lay_out_views();
    if (shown)
        ask_for_render();
}

void veridial_ui::ask_for_render()
{
    const auto component = get_component();
    if (const auto host = component ? component->get_host() : nullptr)
        host->notify({event_kind::render_requested});
}

void veridial_ui::act(key_action action)
{
    switch (action)
    {
    case key_action::undo:
        return views.toolbar->getHistory().undo();
    case key_action::redo:
        return views.toolbar->getHistory().redo();
    case key_action::bypass:
        return views.toolbar->toggleBypass();
    case key_action::before:
        return views.bar->toggle_comparison(comparison::before);
    case key_action::split:
        return views.bar->toggle_comparison(comparison::split);
    case key_action::fit:
        return views.preview_scroller->zoomToFit();
    case key_action::actual_size:
        return views.preview_scroller->setZoom(1);
    case key_action::inspire:
        return inspire();
    case key_action::help:
        return show_help(*frame, language());
    default: // panel_input does the panel's own actions
        return;
    }
}

void veridial_ui::resize(int new_width, int new_height)
{
    if (!frame)
        return;
    memory.window_width = new_width;
    memory.window_height = new_height;
    frame->setSize(new_width, new_height);
    width = new_width / scale;
    height = new_height / scale;
    lay_out_views();
}

void veridial_ui::lay_out_views()
{
    lay_out(views, width, height, memory.shows_scopes);
    frame->invalid();
}

void veridial_ui::close()
{
    if (const auto component = get_component())
        component->set_bypass(false);
    if (frame)
    {
        if (const auto window = get_window())
        {
            window->set_resize_listener({});
            // Only with a window: tests and pictures of the editor leave the user's settings alone.
            remember();
        }
        drop_frame();
    }
    cview_v1::close();
}

void veridial_ui::drop_frame()
{
    // Everything that refers to the frame's views goes first.
    unregister_parameter_change_listener(views.toolbar);
    browser.reset();
    tooltips.reset();
    input.reset();
    keys.reset();
    stops.clear();
    views = {};
    std::erase(open_frames(), frame);
    std::exchange(frame, nullptr)->close();
}

void veridial_ui::discard_and_close()
{
    if (const auto component = get_component())
        component->cancel_effect();
    if (const auto window = get_window())
        window->close(); // the session notices, and closes the view
}

bool veridial_ui::idle()
{
    // The base class goes first: it processes the window's events and shows values that other threads have set.
    const bool goes_on = cview_v1::idle();
    if (goes_on && frame)
    {
        views.preview->idle();
        views.toolbar->idle();
        views.scopes->idle();
        browser->idle();
        tooltips->idle(now_ms());
        input->idle(now_ms());
        frame->idle();
    }
    return goes_on;
}

void veridial_ui::valueChanged(CControl* control)
{
    if (!get_component())
        return;
    if (!write_parameters(stops, *control) && control == views.controls.inspire &&
        control->getValue() > least_value_of_a_press)
        inspire();
    if (input)
        input->changed(*control);
}

void veridial_ui::update_control(iparameter_v1& parameter, bool edit)
{
    if (frame && !show_parameter(stops, parameter) && edit)
        frame->invalid();
}

void veridial_ui::controlBeginEdit(CControl* control)
{
    if (input && input->begins(*control))
        join_gestures();
    // A pad's tag is its angle's, so the base class brackets the same gesture too: nested brackets are one undo step.
    if (is_bound_pad(stops, *control))
        begin_gesture();
    cview_v1::controlBeginEdit(control);
}

void veridial_ui::controlEndEdit(CControl* control)
{
    if (is_bound_pad(stops, *control))
        end_gesture();
    cview_v1::controlEndEdit(control);
    if (input)
        input->ends(*control);
    // The last frame of the drag was counted in part: the next one is counted whole.
    if (memory.shows_scopes && !is_editing())
        ask_for_render();
}

void veridial_ui::inspire()
{
    begin_gesture();
    inspire_randomize();
    end_gesture();
    views.toolbar->getHistory().label_step(iutils::translate(language(), random_look_label));
}

void veridial_ui::inspire_randomize()
{
    if (const auto component = get_component())
        randomize_look(*component);
}

void veridial_ui::set_preview_image(image& picture)
{
    if (views.preview)
        views.preview->update(picture);
    if (!views.scopes)
        return;
    views.scopes->set_row_step(is_editing() ? scope_rows_while_dragging : 1);
    views.scopes->update(picture);
}

void veridial_ui::set_preview_source(const image& picture)
{
    if (views.preview)
        views.preview->update_source(picture);
}

void veridial_ui::offer_frames(int count, std::function<void(int frame)> chosen)
{
    if (views.bar)
        views.bar->offer_frames(count, std::move(chosen));
}

void veridial_ui::colour_picked(const std::optional<picked_colour>& colour)
{
    if (views.bar)
        views.bar->show_colour(colour);
}

} // namespace ov1

#include "editor/veridial_ui.h"

#include "editor/controls/modal/tooltip_layer.h"
#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/view_area.h"
#include "editor/controls/widgets/reset_click.h"
#include "editor/discard_keys.h"
#include "editor/editor_hand.h"
#include "editor/panel/panel_layout.h"
#include "editor/presets/preset_browser.h"
#include "editor/preview/preview_bar.h"
#include "editor/scopes/scopes_panel.h"
#include "editor/scopes/scopes_text.h"
#include "editor/toolbar/cov_plugin_toolbar.h"
#include "framework/ihost_v1.h"
#include "framework/view/toolkit_guard.h"
#include "framework/view/view_size.h"
#include "platform/iutils.h"
#include "presets/random_look.h"
#include "shared/image.h"

#include "vstgui/lib/controls/cscrollbar.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr std::int32_t preview_scroll_style = 0x43;
constexpr CCoord scrollbar_width = 12;
constexpr std::uint32_t tooltip_delay_ms = 4000;
constexpr CCoord preview_bar_height = 34;
constexpr CCoord scopes_width = 260;
constexpr const char* random_look_label = "{en:Random look}{de:Zufälliger Look}";
/// A drag is followed by scopes of every second row; its end brings those of all.
constexpr std::size_t scope_rows_while_dragging = 2;
constexpr float least_value_of_a_press = 0.5f;

void colour_scrollbar(CScrollbar* bar, const CColor& back)
{
    if (!bar)
        return;
    bar->setFrameColor(back);
    bar->setBackgroundColor(back);
    bar->setScrollerColor(style::scroller);
}

std::uint64_t now_ms()
{
    const auto since_start = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(since_start).count());
}

/// Of all open editors, in the order of their opening. The editor's thread alone.
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
    const bool fits = lies_within(memory.window_width, least_view_width, width) &&
                      lies_within(memory.window_height, least_view_height, height);
    return fits ? rect{0, 0, memory.window_width, memory.window_height} : suitable;
}

void veridial_ui::remember()
{
    memory.split = preview->get_split();
    memory.last_folder = toolbar->getLutExport().get_last_folder();
    memory.scopes = scope_choice_text(scopes->get_choice());
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
    frame->setZoom(scale);
    window->set_resize_listener([this](int width, int height) { resize(width, height); });
    toolbar->setWindow(window);
}

CFrame* veridial_ui::get_open_frame() { return open_frames().empty() ? nullptr : open_frames().back(); }

void veridial_ui::build_frame(double width, double height)
{
    CControl::CheckDefaultValueEventFunc = leave_resets_to_controls;
    frame = new CFrame(CRect(0, 0, width, height), this);
    frame->setBackgroundColor(style::background);
    frame->setFocusColor(style::accent); // of selected text, too
    frame->enableTooltips(true, tooltip_delay_ms);
    add_preview(width, height);
    add_scopes(height);
    add_toolbar(width);
    add_column(width, height);
    browser = std::make_unique<preset_browser>(*frame, *preview, toolbar->getPresets(), language());
    toolbar->setPresetChooser([this] { browser->toggle(column->getViewSize()); });
    keys = std::make_unique<discard_keys>(*frame, [this] { discard_and_close(); });
    lay_out(width, height);
    tooltips = std::make_unique<tooltip_layer>(*frame, tooltip_delay_ms);
}

void veridial_ui::add_preview(double width, double height)
{
    const CRect place = to_crect(place_preview(static_cast<int>(width), static_cast<int>(height)));
    preview = new COVImagePreview<veridial_ui>(place, get_component());
    preview->setOwner(*this);
    preview->set_split(memory.split);
    preview_scroller = new COVScrollView(place, place, preview_scroll_style);
    preview_scroller->setBackgroundColor(kBlackCColor);
    preview_scroller->setScrollbarWidth(scrollbar_width);
    colour_scrollbar(preview_scroller->getHorizontalScrollbar(), kBlackCColor);
    colour_scrollbar(preview_scroller->getVerticalScrollbar(), kBlackCColor);
    preview_scroller->addView(preview);
    preview->set_scroller(preview_scroller);
    frame->addView(preview_scroller);

    CRect strip = place;
    strip.top = strip.bottom - preview_bar_height;
    bar = new preview_bar(strip, *preview, *preview_scroller, language());
    frame->addView(bar);
}

void veridial_ui::add_scopes(double height)
{
    scopes = new scopes_panel(CRect(0, 0, scopes_width, height), language());
    scopes->set_choice(scope_choice_from_text(memory.scopes));
    scopes->setVisible(memory.shows_scopes);
    scopes->set_frame_listener([this] { ask_for_render(); });
    bar->offer_scopes(memory.shows_scopes, [this](bool shown) { show_scopes(shown); }, language());
    frame->addView(scopes);
}

void veridial_ui::show_scopes(bool shown)
{
    memory.shows_scopes = shown;
    scopes->setVisible(shown);
    lay_out(width, height);
    if (shown)
        ask_for_render();
}

void veridial_ui::ask_for_render()
{
    const auto component = get_component();
    if (const auto host = component ? component->get_host() : nullptr)
        host->notify({event_kind::render_requested});
}

void veridial_ui::add_toolbar(double width)
{
    toolbar =
        new COVPluginToolbar(to_crect(place_toolbar(static_cast<int>(width))), frame, get_component(), get_window());
    toolbar->setDiscardAction([this] { discard_and_close(); });
    toolbar->getLutExport().set_last_folder(memory.last_folder);
    register_parameter_change_listener(toolbar);
    toolbar->show_undo_redo_button(true, {}, {});
    frame->addView(toolbar);
}

void veridial_ui::add_column(double width, double height)
{
    const CRect place = to_crect(place_column(static_cast<int>(width), static_cast<int>(height)));
    column = new CScrollView(place, CRect(0, 0, column_width, panel_height),
                             CScrollView::kHorizontalScrollbar | CScrollView::kVerticalScrollbar);
    column->setScrollbarWidth(scrollbar_width);
    column->setBackgroundColor(style::background);
    colour_scrollbar(column->getVerticalScrollbar(), kBlackCColor);
    colour_scrollbar(column->getHorizontalScrollbar(), kBlackCColor);

    auto* const container = new CViewContainer(CRect(0, 0, panel_width, panel_height));
    container->setBackground(draw_panel_background(frame));
    controls = add_panel_controls(*container, *this, language());
    if (const auto component = get_component())
        stops = order_panel_stops(*component, controls);
    column->addView(container);
    frame->addView(column);
    add_hand(*container);
}

void veridial_ui::add_hand(CViewContainer& panel)
{
    hand = std::make_unique<editor_hand>(*frame, *column, panel, stops, language(),
                                         hand_links{[this] { return get_component(); }, [this] { begin_gesture(); },
                                                    [this] { end_gesture(); }, [this](key_action a) { act(a); }});
}

void veridial_ui::act(key_action action)
{
    switch (action)
    {
    case key_action::undo:
        return toolbar->getHistory().undo();
    case key_action::redo:
        return toolbar->getHistory().redo();
    case key_action::bypass:
        return toolbar->toggleBypass();
    case key_action::before:
        return bar->toggle_comparison(comparison::before);
    case key_action::split:
        return bar->toggle_comparison(comparison::split);
    case key_action::fit:
        return preview_scroller->zoomToFit();
    case key_action::actual_size:
        return preview_scroller->setZoom(1);
    case key_action::inspire:
        return inspire();
    case key_action::help:
        return show_help(*frame, language());
    default: // the panel's own
        return;
    }
}

void veridial_ui::resize(int width, int height)
{
    if (!frame)
        return;
    memory.window_width = width;
    memory.window_height = height;
    frame->setSize(width, height);
    lay_out(width / scale, height / scale);
}

void veridial_ui::lay_out(double new_width, double new_height)
{
    width = new_width;
    height = new_height;
    CRect place = to_crect(place_preview(static_cast<int>(width), static_cast<int>(height)));
    if (memory.shows_scopes)
    {
        place_view(*scopes, CRect(0, 0, scopes_width, height));
        place.left = scopes_width;
    }
    place_view(*preview_scroller, place);
    place_view(*bar, CRect(place.left, place.bottom - preview_bar_height, place.right, place.bottom));
    place_view(*toolbar, to_crect(place_toolbar(static_cast<int>(width))));
    place_view(*column, to_crect(place_column(static_cast<int>(width), static_cast<int>(height))));
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
            remember();
        }
        drop_frame();
    }
    cview_v1::close();
}

void veridial_ui::drop_frame()
{
    // First all that looks into the frame.
    unregister_parameter_change_listener(toolbar);
    browser.reset();
    tooltips.reset();
    hand.reset();
    keys.reset();
    stops.clear();
    controls = {};
    preview = nullptr;
    toolbar = nullptr;
    bar = nullptr;
    scopes = nullptr;
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
    const bool goes_on = cview_v1::idle();
    if (goes_on && frame)
    {
        preview->idle();
        toolbar->idle();
        scopes->idle();
        browser->idle();
        tooltips->idle(now_ms());
        hand->idle(now_ms());
        frame->idle();
    }
    return goes_on;
}

void veridial_ui::valueChanged(CControl* control)
{
    if (!get_component())
        return;
    if (!write_parameters(stops, *control) && control == controls.inspire &&
        control->getValue() > least_value_of_a_press)
        inspire();
    if (hand)
        hand->changed(*control);
}

void veridial_ui::set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit)
{
    if (defer(parameter, edit))
        return;
    cview_v1::set_control_from_parameter(parameter, edit);
    if (!frame)
        return;
    if (!show_parameter(stops, *parameter) && edit)
        frame->invalid();
}

void veridial_ui::controlBeginEdit(CControl* control)
{
    if (hand && hand->begins(*control))
        join_gestures();
    // The base class brackets the same gesture, since a pad's tag is its angle's: nested brackets make one step.
    if (is_bound_pad(stops, *control))
        begin_gesture();
    cview_v1::controlBeginEdit(control);
}

void veridial_ui::controlEndEdit(CControl* control)
{
    if (is_bound_pad(stops, *control))
        end_gesture();
    cview_v1::controlEndEdit(control);
    if (hand)
        hand->ends(*control);
    if (memory.shows_scopes && !is_editing())
        ask_for_render();
}

void veridial_ui::inspire()
{
    begin_gesture();
    inspire_randomize();
    end_gesture();
    toolbar->getHistory().label_step(iutils::translate(language(), random_look_label));
}

void veridial_ui::inspire_randomize()
{
    if (const auto component = get_component())
        randomize_look(*component);
}

void veridial_ui::set_preview_image(image& picture)
{
    if (preview)
        preview->update(picture);
    if (!scopes)
        return;
    scopes->set_row_step(is_editing() ? scope_rows_while_dragging : 1);
    scopes->update(picture);
}

void veridial_ui::set_preview_source(const image& picture)
{
    if (preview)
        preview->update_source(picture);
}

void veridial_ui::offer_frames(int count, std::function<void(int frame)> chosen)
{
    if (bar)
        bar->offer_frames(count, std::move(chosen));
}

void veridial_ui::colour_picked(const std::optional<picked_colour>& colour)
{
    if (bar)
        bar->show_colour(colour);
}

} // namespace ov1

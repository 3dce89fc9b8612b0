// The effect with its editor open, in a frame without a window and with a temporary home folder.
#pragma once

#include "editor/toolbar/cov_plugin_toolbar.h"
#include "editor/veridial_ui.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/editor_factory.h"
#include "framework/image_render.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/row_renderer.h"
#include "framework/view/toolkit_guard.h"
#include "ov_source/editor/controls/widgets/control_stage.h"
#include "platform/cutils_linux.h"
#include "platform/utils_guard.h"
#include "shared/argb_float.h"
#include "shared/image.h"
#include "support/fake_window.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ov1
{

/// High enough to show the whole panel.
struct headless_ui : veridial_ui
{
    using veridial_ui::veridial_ui;
    void init_view() override
    {
        build_frame(1200, 900);
        getFrame()->attached(getFrame()); // as it is when a window opens it
        get_window()->set_resize_listener([this](int width, int height) { resize(width, height); });
    }
};

struct speaking_host : chost_v1
{
    using chost_v1::chost_v1;
    language_id get_language() const override { return language; }
    language_id language = language_id::english;
};

inline std::string tooltip_of(const VSTGUI::CView& view)
{
    std::uint32_t bytes = 0;
    view.getAttributeSize(VSTGUI::kCViewTooltipAttribute, bytes);
    std::string text(bytes, '\0');
    view.getAttribute(VSTGUI::kCViewTooltipAttribute, bytes, text.data(), bytes);
    return text.c_str();
}

/// The only child of its class; with deep, among all descendants.
template <class T>
T& child_of(const VSTGUI::CViewContainer& parent, bool deep = false)
{
    std::vector<T*> found;
    EXPECT_EQ(parent.getChildViewsOfType<T>(found, deep), 1u);
    return *found.front();
}

/// Only one at a time, because there is one toolkit.
struct editor_stage : frame_driver
{
    explicit editor_stage(language_id language = language_id::english)
    {
        install_editor_factory([this](std::weak_ptr<icomponent_v1> component)
                               { return ui = std::make_shared<headless_ui>(std::move(component)); });
        open(language);
    }
    ~editor_stage()
    {
        close();
        install_editor_factory({});
        ui.reset(); // while there is a toolkit
    }
    editor_stage& operator=(editor_stage&&) = delete;

    /// Closes the editor and opens one of a new effect in the same home.
    void reopen()
    {
        close();
        effect = create_ccomponent();
        shown = std::make_shared<fake_window>();
        open(language_id::english);
    }

    float value(const std::string& name) const
    {
        return effect->get_parameter(name)->get_param_value().value.as_continuous();
    }
    void set(const std::string& name, float value) const
    {
        param_value record = effect->get_parameter(name)->get_param_value();
        record.value = param_cell::of(value);
        effect->get_parameter(name)->set_param_value(record, false);
    }
    std::vector<std::uint8_t> state() const { return effect->get_state(); }
    int undo_position() const { return effect->get_undo_range().position; }

    COVColorWheelXYPad& pad(panel_slot slot) const { return *ui->get_controls().pads[static_cast<std::size_t>(slot)]; }
    /// The arc or slider of a parameter that has one.
    VSTGUI::CControl& control(const std::string& parameter) const
    {
        const auto tag = static_cast<std::int32_t>(make_uid(parameter));
        return **std::ranges::find(ui->get_controls().others, tag, &VSTGUI::CControl::getTag);
    }
    COVPluginToolbar& toolbar() const { return child_of<COVPluginToolbar>(*frame); }
    /// The button of a toolbar or bar, by its tooltip.
    template <class bar_type>
    VSTGUI::CView& button(const std::string& tooltip) const
    {
        VSTGUI::CView* found = nullptr;
        child_of<bar_type>(*frame).forEachChild([&](VSTGUI::CView* each)
                                                { found = tooltip_of(*each) == tooltip ? each : found; });
        return *found;
    }

    /// The colours of the left and the right half of the frame that show_frame shows.
    static constexpr argb_float halves[] = {{1, 200 / 255.f, 120 / 255.f, 60 / 255.f},
                                            {1, 40 / 255.f, 90 / 255.f, 170 / 255.f}};
    /// Shows the frame before and after the present grade, as an editor session does.
    void show_frame() const
    {
        image source(296, 168, image::pixel_type::argb_f32, image::origin::top_left);
        image graded(296, 168, image::pixel_type::argb_f32, image::origin::top_left);
        for (std::size_t i = 0; i < std::size_t{296} * 168; ++i)
            reinterpret_cast<argb_float*>(source.pixels())[i] = halves[i % 296 / 148];
        effect->get_host()->notify({event_kind::render_begins});
        ASSERT_TRUE(render_image(*effect->get_row_renderer(), source, graded));
        ui->set_preview_source(source);
        ui->set_preview_image(graded);
        ui->idle();
    }

    /// A point of the frame, as an offset from the centre of the view.
    static VSTGUI::CPoint at(const VSTGUI::CView& view, double x = 0, double y = 0)
    {
        VSTGUI::CPoint point = view.getViewSize().getCenter();
        point.offset(x, y);
        return view.translateToGlobal(point, true);
    }
    void press_on(const VSTGUI::CView& view, double x, double y, VSTGUI::MouseButton button = VSTGUI::MouseButton::Left,
                  VSTGUI::Modifiers keys = {})
    {
        press(at(view, x, y).x, at(view, x, y).y, button, keys);
    }
    void click_on(const VSTGUI::CView& view, VSTGUI::Modifiers keys = {})
    {
        press_on(view, 0, 0, VSTGUI::MouseButton::Left, keys);
        release(at(view).x, at(view).y);
    }
    void drag_over(const VSTGUI::CView& view, double x, double y)
    {
        press_on(view, x, y);
        for (const double step : {4.0, 9.0, 13.0})
            drag(at(view, x + step, 0).x, at(view, 0, y - step).y);
        release(0, 0);
    }

    temp_folder home;
    cutils_linux utils{
        "orvane", "veridial", {home / "settings", home.path, VERIDIAL_SHARE_DIR, 1.0, language_id::english}};
    utils_guard in_place{utils};
    toolkit_guard toolkit;
    std::shared_ptr<icomponent_v1> effect = create_ccomponent();
    std::shared_ptr<fake_window> shown = std::make_shared<fake_window>();
    std::shared_ptr<headless_ui> ui;

private:
    void open(language_id language)
    {
        const auto host = std::make_shared<speaking_host>(effect);
        host->language = language;
        effect->initialize(host);
        EXPECT_TRUE(effect->create_view()->open(shown));
        frame = ui->getFrame();
    }
    void close()
    {
        ui->close();
        if (effect)
            effect->terminate();
    }
};

} // namespace ov1

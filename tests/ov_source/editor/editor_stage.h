// The effect with its editor open, in a frame without a window and a home of its own.
#pragma once

#include "editor/cov_plugin_toolbar.h"
#include "editor/panel_layout.h"
#include "editor/veridial_ui.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/editor_factory.h"
#include "framework/iparameter_v1.h"
#include "framework/toolkit_scope.h"
#include "platform/cutils_linux.h"
#include "platform/scoped_utils.h"
#include "support/temp_folder.h"

#include "vstgui/vstgui.h"

#include <gtest/gtest.h>

namespace ov1
{

struct fake_window : window
{
    void close() override { open = false; }
    bool is_open() const override { return open; }
    void* get_native_handle() const override { return const_cast<fake_window*>(this); }
    void begin_modal() override {}
    void end_modal() override {}
    bool is_modal() const override { return false; }
    void pop_pending_messages() override {}
    void set_pump_hook(std::function<void()>) override {}
    void raise() override {}
    void set_resize_listener(std::function<void(int, int)>) override {}

    bool open = true;
};

/// High enough that all of the panel is seen.
struct headless_ui : veridial_ui
{
    static constexpr int width = 1200, height = 900;

    using veridial_ui::veridial_ui;
    void init_view() override
    {
        build_frame(width, height);
        getFrame()->attached(getFrame()); // as opening it in a window does
    }
};

struct speaking_host : chost_v1
{
    speaking_host(std::weak_ptr<icomponent_v1> component, language_id language)
        : chost_v1(std::move(component))
        , language(language)
    {
    }
    language_id get_language() const override { return language; }

    const language_id language;
};

/// The one child of its class.
template <class T>
T& child_of(const VSTGUI::CViewContainer& parent)
{
    std::vector<T*> found;
    EXPECT_EQ(parent.getChildViewsOfType<T>(found), 1u);
    return *found.front();
}

class editor_stage
{
public:
    explicit editor_stage(language_id language = language_id::english)
    {
        effect->initialize(std::make_shared<speaking_host>(effect, language));
        install_editor_factory([this](std::weak_ptr<icomponent_v1> component)
                               { return ui = std::make_shared<headless_ui>(std::move(component)); });
        EXPECT_TRUE(effect->create_view()->open(shown));
    }
    ~editor_stage()
    {
        ui->close();
        install_editor_factory({});
        if (effect)
            effect->terminate();
        ui.reset();
    }
    editor_stage& operator=(editor_stage&&) = delete;

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
    int undo_position() const { return effect->get_undo_range().position; }

    VSTGUI::CFrame& frame() const { return *ui->getFrame(); }
    COVColorWheelXYPad& pad(panel_slot slot) const { return *ui->get_controls().pads[static_cast<std::size_t>(slot)]; }
    VSTGUI::CControl& control(const char* parameter) const
    {
        for (VSTGUI::CControl* each : ui->get_controls().others)
            if (each->getTag() == static_cast<std::int32_t>(make_uid(parameter)))
                return *each;
        ADD_FAILURE() << parameter;
        std::abort();
    }
    COVPluginToolbar& toolbar() const { return child_of<COVPluginToolbar>(frame()); }

    /// A point of the view, counted from its middle, in the frame.
    VSTGUI::CPoint at(const VSTGUI::CView& view, double x = 0, double y = 0) const
    {
        VSTGUI::CPoint point = view.getViewSize().getCenter();
        point.offset(x, y);
        return view.translateToGlobal(point, true);
    }
    template <class E>
    void send(E event, VSTGUI::Modifiers keys = {}) const
    {
        event.modifiers = keys;
        frame().dispatchEvent(event);
    }
    void press(const VSTGUI::CPoint& where, VSTGUI::MouseButton button = VSTGUI::MouseButton::Left,
               VSTGUI::Modifiers keys = {}) const
    {
        send(VSTGUI::MouseDownEvent(where, button), keys);
    }
    void drag(const VSTGUI::CPoint& where) const { send(VSTGUI::MouseMoveEvent(where, VSTGUI::MouseButton::Left)); }
    void release(const VSTGUI::CPoint& where) const { send(VSTGUI::MouseUpEvent(where, VSTGUI::MouseButton::Left)); }
    void type(VSTGUI::VirtualKey key) const
    {
        VSTGUI::KeyboardEvent event;
        event.virt = key;
        send(std::move(event));
    }

    temp_folder home;
    cutils_linux utils{"", "", {{}, home.path, VERIDIAL_SHARE_DIR, 1.0, language_id::english}};
    scoped_utils in_place{utils};
    toolkit_scope toolkit;
    std::shared_ptr<icomponent_v1> effect = create_ccomponent();
    std::shared_ptr<fake_window> shown = std::make_shared<fake_window>();
    std::shared_ptr<headless_ui> ui;
};

} // namespace ov1

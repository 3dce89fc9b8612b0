// The bridge in use: a component of the tests' own under the simulated host, with an editor that runs a script.
#pragma once

#include "framework/editor_factory.h"
#include "framework/iview_v1.h"
#include "framework/preview_sink.h"
#include "framework/window_factory.h"
#include "support/bridge_component.h"

#include "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"
#include "host/simulator/simulated_host.h"

#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace ov1
{

/// Autoreleased objects end with it, after what is declared behind it.
struct pool_guard
{
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    ~pool_guard() { [pool drain]; }
};

struct bare_window : window
{
    void close() override { open = false; }
    bool is_open() const override { return open; }
    void* get_native_handle() const override { return nullptr; }
    void begin_modal() override {}
    void end_modal() override {}
    bool is_modal() const override { return open; }
    void pop_pending_messages() override
    {
        if (pump)
            pump();
    }
    void set_pump_hook(std::function<void()> hook) override { pump = std::move(hook); }
    void raise() override { ++raises; }
    void set_resize_listener(std::function<void(int, int)>) override {}

    bool open = true;
    int raises = 0;
    std::function<void()> pump;
};

/// One step of the script at each turn; closes at its end.
struct scripted_editor : iview_v1, preview_sink
{
    bool query_interface(const std::string&, iobject**) override { return false; }
    rect get_rect() const override { return {0, 0, 1024, 528}; }
    bool open(std::shared_ptr<window> window) override
    {
        shown = std::move(window);
        return true;
    }
    void close() override { shown->close(); }
    bool is_open() override { return shown && shown->is_open() && step <= script.size(); }
    bool is_editing() override { return false; }
    bool idle() override
    {
        if (step < script.size())
            script[step]();
        ++step;
        shown->pop_pending_messages();
        return true;
    }
    void init_view() override {}
    void set_control_from_parameter(std::shared_ptr<iparameter_v1>, bool) override {}
    void update_controls(bool) override {}
    void register_parameter_change_listener(iparameter_change_listener_v1*) override {}
    void unregister_parameter_change_listener(iparameter_change_listener_v1*) override {}
    void set_preview_image(image&) override { ++previews; }
    void set_preview_source(const image& picture) override { source_width = picture.get_width(); }
    void offer_frames(int, std::function<void(int)>) override {}

    std::shared_ptr<window> shown;
    std::vector<std::function<void()>> script;
    std::size_t step = 0;
    int previews = 0;
    std::uint32_t source_width = 0;
};

struct bridge_fixture : ::testing::Test
{
    bridge_fixture();
    ~bridge_fixture() override;

    fcp_wrapper_veridialfcpx_3_7_0_0* plugin()
    {
        return static_cast<fcp_wrapper_veridialfcpx_3_7_0_0*>(host.get_plugin());
    }
    std::shared_ptr<icomponent_v1> component() { return [plugin() getComponent]; }
    param_cell value(int place) { return component()->get_parameter(place)->get_param_value().value; }
    /// As the editor and an undo set it.
    void set(int place, param_cell to);
    store_value at_host(std::uint32_t number, store_value kind = 0.0);
    /// Turns the run loop until the editor has been open and is closed again.
    void press_and_run();

    pool_guard pool;
    host_error error;
    simulated_host host;
    std::shared_ptr<scripted_editor> editor = std::make_shared<scripted_editor>();
    std::shared_ptr<bare_window> window = std::make_shared<bare_window>();
};

} // namespace ov1

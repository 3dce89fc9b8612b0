// The bridge with a test component in the simulated host, and a scripted editor.
#pragma once

#include "framework/editor_factory.h"
#include "framework/window_factory.h"
#include "support/bridge_component.h"
#include "support/fake_window.h"
#include "support/pool_guard.h"
#include "support/scripted_view.h"

#include "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"
#include "host/simulator/simulated_host.h"

#include <gtest/gtest.h>

namespace ov1
{

struct bridge_fixture : ::testing::Test
{
    bridge_fixture();
    ~bridge_fixture() override;

    fcp_wrapper_veridialfcpx_3_7_0_0* plugin()
    {
        return static_cast<fcp_wrapper_veridialfcpx_3_7_0_0*>(host.get_plugin());
    }
    std::shared_ptr<icomponent_v1> component() { return [plugin() getComponent]; }
    param_cell value(int index) { return component()->get_parameter(index)->get_param_value().value; }
    /// Sets a parameter as the editor and undo do (edit false).
    void set(int index, param_cell to);
    /// The host's value of a parameter at the playhead.
    store_value at_host(std::uint32_t id);
    /// Clicks the button and runs the run loop until the editor has opened and closed.
    void press_and_run();

    pool_guard pool;
    simulated_host host;
    std::shared_ptr<scripted_view> editor = std::make_shared<scripted_view>();
    std::shared_ptr<fake_window> window = std::make_shared<fake_window>();
};

} // namespace ov1

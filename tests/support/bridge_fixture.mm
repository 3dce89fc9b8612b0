#include "support/bridge_fixture.h"

#include "framework/create_ccomponent.h"
#include "host/fxplug/run_loop.h"

namespace ov1
{

// The effect that this test program is linked with.
std::shared_ptr<icomponent_v1> create_ccomponent() { return std::make_shared<bridge_component>(); }

bridge_fixture::bridge_fixture()
{
    install_editor_factory([this](std::weak_ptr<icomponent_v1>) { return editor; });
    install_window_maker([this](const std::string&, const rect&, const std::string&, void*) { return window; });
    const auto created = host.create_instance();
    EXPECT_TRUE(created) << created.error().reason;
}

bridge_fixture::~bridge_fixture()
{
    install_editor_factory({});
    install_window_maker({});
}

void bridge_fixture::set(int index, param_cell to)
{
    const auto parameter = component()->get_parameter(index);
    param_value v = parameter->get_param_value();
    v.value = to;
    parameter->set_param_value(v, false);
}

store_value bridge_fixture::at_host(std::uint32_t id)
{
    const auto value = host.get_parameters().get(id, host.get_playhead());
    EXPECT_TRUE(value) << id;
    return value.value_or(store_value());
}

void bridge_fixture::press_and_run()
{
    editor->step = 0;
    editor->shown.reset();
    window->open = true;
    [plugin() handleGUIButton];
    (void)host.wait_for_analysis(); // a failure shows as an editor that does not open
    // The timer's first tick opens the editor, which returns when it is closed.
    for (int tick = 0; tick < 100 && editor->step == 0; ++tick)
        [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
}

} // namespace ov1

#include "framework/view/toolkit_guard.h"

#include "framework/view/cview_v1.h"
#include "framework/view/x11/poll_run_loop.h"
#include "framework/view/x11/x11_desktop.h"
#include "framework/view/x11/x11_window.h"
#include "framework/window_factory.h"
#include "platform/desktop_services.h"
#include "platform/iutils.h"

#include "vstgui/lib/cframe.h"
#include "vstgui/lib/platform/linux/linuxfactory.h"
#include "vstgui/lib/platform/linux/x11platform.h"
#include "vstgui/lib/platform/platformfactory.h"
#include "vstgui/lib/vstguiinit.h"

#include <cassert>
#include <utility>

namespace ov1
{

struct toolkit_guard::parts
{
    VSTGUI::SharedPointer<poll_run_loop> loop = VSTGUI::makeOwned<poll_run_loop>();
    std::unique_ptr<x11_desktop> desktop;
    bool has_toolkit_connection = false;

    /// Null without an X server; the next call tries again.
    x11_desktop* connect();
    /// Null without an X server.
    std::shared_ptr<window> make_window(const std::string& icon, const rect& size, const std::string& title,
                                        void* parent);
    /// The services of this desktop. They refer to this object.
    desktop_services make_services();
};

toolkit_guard::parts* toolkit_guard::running = nullptr;

x11_desktop* toolkit_guard::parts::connect()
{
    if (!desktop)
        // Connected late, so that a program that never opens a window needs no X server.
        desktop = x11_desktop::connect(loop);
    return desktop.get();
}

std::shared_ptr<window> toolkit_guard::parts::make_window(const std::string& icon, const rect& size,
                                                          const std::string& title, void* parent)
{
    if (!connect())
        return nullptr;
    if (!std::exchange(has_toolkit_connection, true)) // kept until the end: see the class
#if VSTGUI_VERSION_MINOR >= 15
        VSTGUI::X11::RunLoop::init();
#else
        VSTGUI::X11::RunLoop::init(loop);
#endif
    return std::make_shared<x11_window>(*desktop, *loop, icon, size, title, parent);
}

desktop_services toolkit_guard::parts::make_services()
{
    desktop_services services;
    services.query_screen = [this](void* window, int& width, int& height)
    {
        if (!connect())
            return false;
        // Handles are window ids in a pointer.
        const auto id = static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(window));
        const rect monitor = desktop->get_monitor_size(id);
        width = monitor.width;
        height = monitor.height;
        return true;
    };
    services.query_dpi = [this]
    {
        constexpr double usual = 96;
        return connect() ? desktop->get_dpi().value_or(usual) : usual;
    };
    return services;
}

toolkit_guard::toolkit_guard()
    : held(std::make_unique<parts>())
{
    assert(!running);
    running = held.get();
    VSTGUI::init(nullptr);
    const auto* factory = VSTGUI::getPlatformFactory().asLinuxFactory();
    // Pictures are looked up by name in this folder; the toolkit needs the separator at the end.
    factory->setResourcePath(iutils::get_instance().get_resource_directory() + "/");
#if VSTGUI_VERSION_MINOR >= 15
    factory->setRunLoop(held->loop);
#endif
    install_desktop_services(held->make_services());
    install_window_maker([this](const std::string& icon, const rect& size, const std::string& title, void* parent)
                         { return held->make_window(icon, size, title, parent); });
}

toolkit_guard::~toolkit_guard()
{
    // In the opposite order of the constructor: nobody may ask for a window any more.
    install_window_maker({});
    install_desktop_services({});
    // Only if it was opened.
    if (held->has_toolkit_connection)
        VSTGUI::X11::RunLoop::exit();
#if VSTGUI_VERSION_MINOR >= 15
    VSTGUI::getPlatformFactory().asLinuxFactory()->setRunLoop(nullptr);
#endif
    VSTGUI::exit();
    // The desktop's listeners refer to the run loop, which goes last.
    held->desktop.reset();
    running = nullptr;
}

void toolkit_guard::process_events()
{
    constexpr std::chrono::milliseconds longest_wait(25);
    if (running)
        running->loop->run_once(longest_wait);
}

bool toolkit_guard::open_frame(VSTGUI::CFrame& frame, void* native_handle)
{
    // Without its connection the toolkit would crash here.
    if (!running || !running->has_toolkit_connection || !native_handle)
        return false;
    VSTGUI::X11::FrameConfig config;
    config.runLoop = running->loop;
    return frame.open(native_handle, VSTGUI::PlatformType::kX11EmbedWindowID, &config);
}

} // namespace ov1

#include "editor/editor_guard.h"

#include "editor/toolbar/editor_dialogs.h"
#include "editor/veridial_ui.h"
#include "framework/editor_factory.h"
#include "platform/desktop_services.h"
#include "platform/user_environment.h"

#include <cstdio>

namespace ov1
{

namespace
{

/// Shown over the open editor; without one the text goes to stderr, as in programs without windows.
bool show_alert(void*, const std::string& title, const std::string& message, const std::string& first_button,
                const std::string& second_button)
{
    VSTGUI::CFrame* const frame = veridial_ui::get_open_frame();
    if (!frame)
    {
        std::fprintf(stderr, "%s: %s\n", title.c_str(), message.c_str());
        return false;
    }
    // An alert comes without a component whose host could say the language.
    return editor_dialogs(*frame, read_user_environment().language)
        .ask_and_wait({title, message, first_button, second_button});
}

} // namespace

editor_guard::editor_guard()
{
    // Only the alert is replaced: the other services stay as they are.
    desktop_services services = *get_desktop_services();
    services.show_alert = show_alert;
    install_desktop_services(services);
    install_editor_factory([](std::weak_ptr<icomponent_v1> component)
                           { return std::make_shared<veridial_ui>(std::move(component)); });
}

editor_guard::~editor_guard() { install_editor_factory({}); }

} // namespace ov1

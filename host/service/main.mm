// veridialfcpx: the service that the video host starts. With "--extractXML" it writes the effect template instead.
#import "host/fxplug/fcpx_delegate.h"

#include "host/bridge/extract_command.h"
#include "host/bridge/template_writer.h"
#include "host/fxplug/bundle_info.h"
#include "platform/cocoa/cutils_mac.h"
#include "platform/utils_guard.h"

#if VERIDIAL_HAS_EDITOR
#include "editor/editor_guard.h"
#ifdef __APPLE__
#include "framework/view/cocoa/cocoa_window.h"
#include "framework/window_factory.h"
#endif
#endif

#include <cstdio>
#include <string>
#include <vector>

namespace
{

/// Kept for the life of the process: the host's framework is not known to retain it.
FCPXDelegate* service_delegate = nil;

int serve()
{
#if VERIDIAL_HAS_EDITOR
    // For the life of the service, in which editors open and close.
    const ov1::editor_guard editor;
#ifdef __APPLE__ // on Linux the toolkit installs the maker of X11 windows
    ov1::install_window_maker([](const std::string&, const ov1::rect& size, const std::string& title, void*)
                              { return std::make_shared<ov1::cocoa_window>(size, title); });
#endif
#endif
    service_delegate = [[FCPXDelegate alloc] init];
    [FxPrincipal startServicePrincipalWithDelegate:service_delegate];
    return 0;
}

/// Needs neither a video host nor the editor.
int generate_template(const std::string& folder)
{
    const auto written = ov1::write_template(ov1::read_bundle_facts([NSBundle mainBundle]), folder);
    if (written)
        return 0;
    std::printf("%s", written.error().reason.c_str()); // without a line feed, as build scripts expect it
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    using namespace ov1;
    @autoreleasepool
    {
        // First: the component asks for its folders and settings when it is created.
        cutils_mac utils(vendor_suite_name, product_suite_name);
        const utils_guard in_force(utils);
        // argc is 0 if the caller passes not even the program's name.
        const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
        const extract_command command = read_extract_command(arguments);
        switch (command.what)
        {
        case extract_command::action::say:
            std::puts(command.message.c_str());
            return command.exit_code;
        case extract_command::action::extract:
            return generate_template(command.folder);
        case extract_command::action::serve:
            break;
        }
        return serve();
    }
}

#include "host/simulator/verbs/open_verb.h"

#include "command_line/program.h"
#include "host/simulator/inspector.h"
#include "host/simulator/verbs/host_pictures.h"
#include "host/simulator/verbs/hosted_effect.h"

#import <AppKit/AppKit.h>

#include <cstdlib>
#include <unistd.h>

namespace ov1
{

namespace
{

bool parse(host_request& request, std::optional<std::string>& output, std::span<const std::string> arguments,
           console& out, exit_code& code)
{
    argument_parser parser("veridial-host open", "Shows the inspector of a video host; its button opens the editor.",
                           "  veridial-host open photo.png --save-document grade.plist -o out.png\n");
    add_host_options(parser, request);
    parser.text("-o,--output", output, "OUT", "the picture as it is when the inspector is closed, rendered");
    if (!parse_or_explain(parser, arguments, out, code))
        return false;
    std::vector<std::string> outputs;
    for (const auto& path : {output, request.save_document})
        if (path)
            outputs.push_back(*path);
    return settle_host_request(request, outputs, out, code);
}

/// Without an icon of its own on the desktop, and without our arguments, which it would take for documents to open.
void start_application()
{
    char name[] = "veridial-host";
    char* arguments[] = {name, nullptr};
    [NSProcessInfo initializeWithArguments:arguments count:1 environment:environ];
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults registerDefaults:[NSDictionary dictionaryWithObject:@"YES" forKey:@"GSSuppressAppIcon"]];
    [NSApplication sharedApplication];
    [NSApp finishLaunching];
    [NSApp activateIgnoringOtherApps:YES];
}

/// The inspector until it is closed, then what the command line asks for.
exit_code sit(const host_request& request, const std::optional<std::string>& output, console& out)
{
    picture_file file;
    hosted_effect effect;
    std::vector<problem> problems;
    problem why;
    if (!read_picture(request.inputs[0], file, why))
        problems.push_back(why);
    else if (effect.open(request, problems))
    {
        effect.get().set_frame(file.picture, surface_format::half);
        {
            inspector window(effect.get(), "Veridial");
            window.run();
        }
        host_picture rendered;
        host_error error;
        if (output && !effect.get().render(file.picture, rendered, {}, error))
            problems.push_back({exit_code::unsupported, "the effect", error.description, {}});
        else if ((output && !write_picture(*output, file, rendered, request.overwrite, why)) ||
                 !effect.save(request, why))
            problems.push_back(why);
    }
    return fail(problems, out);
}

} // namespace

exit_code run_host_open(std::span<const std::string> arguments, console& out)
{
    @autoreleasepool
    {
        host_request request;
        std::optional<std::string> output;
        exit_code code = exit_code::done;
        if (!parse(request, output, arguments, out, code))
            return code;
        if (std::getenv("DISPLAY") == nullptr)
        {
            out.error({exit_code::unsupported, "open", "no window can be opened",
                       "is there a desktop? DISPLAY names the X server"});
            return exit_code::unsupported;
        }
        start_application();
        return sit(request, output, out);
    }
}

} // namespace ov1

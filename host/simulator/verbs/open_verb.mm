#include "host/simulator/verbs/open_verb.h"

#include "command_line/program.h"
#include "host/simulator/inspector.h"
#include "host/simulator/verbs/hosted_effect.h"
#include "host/simulator/verbs/picture_file.h"

#import <AppKit/AppKit.h>

#include <cstdlib>
#include <unistd.h>

namespace ov1
{

namespace
{

std::optional<exit_code> parse(simulator_request& request, std::optional<std::string>& output,
                               std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial-host open", "Shows the inspector of a video host; its button opens the editor.",
                           "  veridial-host open photo.png --save-document grade.plist -o out.png\n");
    add_simulator_options(parser, request);
    parser.text("-o,--output", output, "OUT", "the picture as it is when the inspector is closed, rendered");
    if (const auto end = parse_or_explain(parser, arguments, out))
        return end;
    std::vector<std::string> outputs;
    for (const auto& path : {output, request.save_document})
        if (path)
            outputs.push_back(*path);
    if (const auto failures = check_simulator_request(request, outputs); !failures.empty())
        return fail(failures, out);
    return {};
}

/// Starts the application without a desktop icon and without our arguments: it would open them as documents.
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

/// Shows the inspector until it is closed, then writes what the command line asks for.
exit_code show_inspector(const simulator_request& request, const std::optional<std::string>& output, console& out)
{
    const auto file = read_picture(request.inputs[0]);
    if (!file)
        return fail(file.error(), out);
    hosted_effect effect;
    if (const auto failures = effect.open(request); !failures.empty())
        return fail(failures, out);
    // What the effect's analysis finds: the editor shows it.
    effect.get().set_frame(file->picture, surface_format::half);
    {
        // Destroyed before the results are written, so that no window stays on the screen meanwhile.
        inspector window(effect.get(), "Veridial");
        window.run();
    }
    if (output)
        if (const auto written = effect.render_to(*output, *file, {}, request.overwrite); !written)
            return fail(written.error(), out);
    if (const auto saved = effect.save(request); !saved)
        return fail(saved.error(), out);
    return exit_code::done;
}

} // namespace

exit_code run_simulator_open(std::span<const std::string> arguments, console& out)
{
    @autoreleasepool
    {
        simulator_request request;
        std::optional<std::string> output;
        if (const auto end = parse(request, output, arguments, out))
            return *end;
        // Checked here, because the toolkit would end the program without a reason that helps.
        if (std::getenv("DISPLAY") == nullptr)
            return fail(failure{failure_kind::unsupported, "open", "no window can be opened",
                                "is there a desktop? DISPLAY names the X server"},
                        out);
        start_application();
        return show_inspector(request, output, out);
    }
}

} // namespace ov1

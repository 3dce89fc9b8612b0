// veridial-host: a simulated video host, to run the effect without a real one.
#include "command_line/console.h"
#include "command_line/program.h"
#include "host/simulator/verbs/open_verb.h"
#include "host/simulator/verbs/render_verb.h"

#if VERIDIAL_HAS_EDITOR
#include "editor/editor_guard.h"
#endif

#include <array>
#include <string>
#include <vector>

namespace
{

/// Installs the editor for this verb alone: `render` must work without a display.
ov1::exit_code run_open(std::span<const std::string> arguments, ov1::console& out)
{
#if VERIDIAL_HAS_EDITOR
    const ov1::editor_guard editor;
#endif
    return ov1::run_simulator_open(arguments, out);
}

} // namespace

int main(int argc, char** argv)
{
    using namespace ov1;
    constexpr std::array verbs{
        verb{"render", "renders a picture through the effect, in tiles", run_simulator_render},
        verb{"open", "shows the inspector over a picture; its button opens the editor", run_open},
    };
    console out(stdout, stderr, "veridial-host");
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const exit_code code =
        run_verbs("veridial-host", "A simulated video host for the effect Veridial.", arguments, verbs, out);
    return static_cast<int>(out.finish(code));
}

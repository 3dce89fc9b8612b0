// The program: colour grading from the command line.
#include "command_line/console.h"
#include "command_line/interrupt.h"
#include "command_line/program.h"
#include "standalone/verbs/edit_verb.h"
#include "standalone/verbs/grade_verb.h"
#include "standalone/verbs/inspire_verb.h"
#include "standalone/verbs/lut_verb.h"
#include "standalone/verbs/params_verb.h"
#include "standalone/verbs/preset_verb.h"
#include "standalone/verbs/scope_verb.h"
#include "standalone/verbs/sheet_verb.h"

#if VERIDIAL_HAS_EDITOR
#include "editor/editor_guard.h"
#endif

#include <array>
#include <string>
#include <vector>

namespace
{

#if VERIDIAL_HAS_EDITOR
ov1::exit_code run_edit_in_windows(std::span<const std::string> arguments, ov1::console& out)
{
    return ov1::run_edit(arguments, out, [] { return std::make_shared<ov1::editor_guard>(); });
}
#endif

} // namespace

int main(int argc, char** argv)
{
    using namespace ov1;
    watch_interrupts();
    constexpr std::array verbs{
        verb{"grade", "applies a grade to pictures and clips", run_grade},
#if VERIDIAL_HAS_EDITOR
        verb{"edit", "opens the editor on a picture or a clip", run_edit_in_windows},
#endif
        verb{"lut", "exports a grade as a LUT for other software", run_lut},
        verb{"sheet", "draws a contact sheet: one picture, many grades", run_sheet},
        verb{"scope", "draws a waveform, parade, vectorscope or histogram of a picture", run_scope},
        verb{"preset", "lists, shows, saves, checks and deletes presets", run_preset},
        verb{"inspire", "makes random looks", run_inspire},
        verb{"params", "lists the parameters, their ranges and defaults", run_params},
    };
    console out;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(run_program(arguments, verbs, out));
}

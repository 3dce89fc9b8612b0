// The program: colour grading from the command line.
#include "command_line/console.h"
#include "command_line/interrupt.h"
#include "command_line/program.h"
#include "standalone/grade_verb.h"
#include "standalone/inspire_verb.h"
#include "standalone/lut_verb.h"
#include "standalone/params_verb.h"
#include "standalone/preset_verb.h"
#include "standalone/sheet_verb.h"

#include <array>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    using namespace ov1;
    watch_interrupts();
    constexpr std::array<verb, 6> verbs{{
        {"grade", "sends pictures through a grade", run_grade},
        {"lut", "writes a grade as a table for other software", run_lut},
        {"sheet", "shows a picture through many grades", run_sheet},
        {"preset", "keeps grades", run_preset},
        {"inspire", "makes random looks", run_inspire},
        {"params", "lists the parameters", run_params},
    }};
    console out;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(run_program(arguments, verbs, out));
}

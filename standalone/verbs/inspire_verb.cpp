#include "standalone/verbs/inspire_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/number.h"
#include "command_line/output_plan.h"
#include "presets/preset_text.h"
#include "presets/random_look.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/file_output.h"

#include <limits>

namespace ov1
{

namespace
{

constexpr int most_looks = 1000;

struct inspire_command
{
    std::optional<std::string> seed_text, count_text, output, save_as;
    bool overwrite = false;
    std::optional<std::uint32_t> seed;
    int count = 1;
};

bool parse(inspire_command& command, std::span<const std::string> arguments, console& out, exit_code& code)
{
    argument_parser parser("veridial inspire", "Makes random but pleasant looks, as presets.",
                           "  veridial inspire --seed 7 | veridial grade photo.jpg -p - -o inspired.jpg\n"
                           "  veridial inspire -n 12 --save Idea\n");
    parser.text("--seed", command.seed_text, "N", "0 to 4294967295; the same seed gives the same look");
    parser.text("-n,--count", command.count_text, "COUNT", "how many; the next look has the next seed");
    parser.text("-o,--output", command.output, "FILE.json|DIR", "where to, instead of the standard output");
    parser.text("--save", command.save_as, "NAME", "keep them as presets of your own: NAME, or NAME 1, NAME 2 ...");
    parser.flag("-f,--overwrite", command.overwrite, "replace what exists");
    if (!parse_or_explain(parser, arguments, out, code))
        return false;

    std::vector<problem> problems;
    double seed = 0.0;
    problem why{exit_code::usage, "--seed", {}, {}};
    if (command.seed_text)
    {
        constexpr double largest = std::numeric_limits<std::uint32_t>::max();
        if (!read_number_within(*command.seed_text, 0.0, largest, seed, why))
            problems.push_back(why);
        else if (seed != static_cast<double>(static_cast<std::uint32_t>(seed)))
            problems.push_back({exit_code::usage, "--seed", *command.seed_text + " is no whole number", {}});
        else
            command.seed = static_cast<std::uint32_t>(seed);
    }
    why = {exit_code::usage, "-n", {}, {}};
    if (command.count_text && !read_whole_number_within(*command.count_text, 1, most_looks, command.count, why))
        problems.push_back(why);
    if (command.output && command.save_as)
        problems.push_back({exit_code::usage, "--save", "does not go with -o", {}});
    if (command.count > 1 && !command.output && !command.save_as)
        problems.push_back({exit_code::usage, "-n", "several looks need a place", "-o FOLDER or --save NAME"});
    code = fail(problems, out);
    return problems.empty();
}

/// "Idea", or "Idea 3" among several.
std::string numbered(const std::string& name, int look, int count)
{
    return count == 1 ? name : name + ' ' + std::to_string(look + 1);
}

bool keep_look(effect_instance& effect, const inspire_command& command, int look, console& out, problem& why)
{
    if (command.save_as)
    {
        const std::string name = numbered(*command.save_as, look, command.count);
        why = {exit_code::cannot_write, name, {}, {}};
        if (!command.overwrite && effect.get_presets().preset_exists(name))
        {
            why.reason = "exists already";
            why.hint = "-f replaces it";
            return false;
        }
        return effect.get_presets().save_preset(name, command.overwrite, why.reason);
    }
    const std::string text = write_preset_text(effect.get());
    if (!command.output)
    {
        out.result(text + '\n');
        return true;
    }
    const bool folder = command.count > 1 || command.output->ends_with('/');
    const std::string file = folder ? *command.output + "/Look " + std::to_string(look + 1) + ".json" : *command.output;
    return write_output(file, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, command.overwrite,
                        why);
}

} // namespace

exit_code run_inspire(std::span<const std::string> arguments, console& out)
{
    inspire_command command;
    exit_code code = exit_code::done;
    if (!parse(command, arguments, out, code))
        return code;
    effect_instance effect;
    for (int look = 0; look < command.count; ++look)
    {
        effect.get().reset_to_default();
        if (command.seed)
        {
            std::mt19937 engine(*command.seed + static_cast<std::uint32_t>(look));
            randomize_look(effect.get(), engine);
        }
        else
            randomize_look(effect.get());
        if (problem why; !keep_look(effect, command, look, out, why))
        {
            out.error(why);
            return why.code;
        }
    }
    return exit_code::done;
}

} // namespace ov1

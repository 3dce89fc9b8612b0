#include "standalone/verbs/inspire_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/failure_line.h"
#include "command_line/file_output.h"
#include "command_line/number.h"
#include "command_line/option_reader.h"
#include "presets/preset_text.h"
#include "presets/random_look.h"
#include "standalone/jobs/effect_instance.h"

#include <limits>

namespace ov1
{

namespace
{

constexpr int most_looks = 1000;

/// The arguments of the verb.
struct inspire_command
{
    std::optional<std::string> seed_text, count_text, output, save_as;
    bool overwrite = false;
    std::optional<std::uint32_t> seed;
    int count = 1;
};

/// A whole number from 0 to 4294967295.
result<std::uint32_t> read_seed(const std::string& text)
{
    const auto seed = read_number_within(text, 0.0, std::numeric_limits<std::uint32_t>::max());
    if (!seed)
        return seed.error();
    // Every seed of 32 bits is exact as a double.
    if (*seed != static_cast<double>(static_cast<std::uint32_t>(*seed)))
        return failure{failure_kind::usage, {}, in_quotes(text) + " is not a whole number"};
    return static_cast<std::uint32_t>(*seed);
}

std::optional<exit_code> parse(inspire_command& command, std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial inspire", "Makes random looks, as presets.",
                           "  veridial inspire --seed 7 | veridial grade photo.jpg -p - -o inspired.jpg\n"
                           "  veridial inspire -n 12 --save Idea\n");
    parser.text("--seed", command.seed_text, "N", "0 to 4294967295; the same seed makes the same look");
    parser.text("-n,--count", command.count_text, "COUNT", "number of looks; each uses the seed after the last one's");
    parser.text("-o,--output", command.output, "FILE.json|DIR", "output file or folder; by default, stdout");
    parser.text("--save", command.save_as, "NAME", "save as user presets: NAME, or NAME 1, NAME 2 ... for several");
    parser.flag("-f,--overwrite", command.overwrite, "replace existing files and presets");
    const auto settle = [&](option_reader& reader)
    {
        reader.read("--seed", command.seed_text, command.seed, read_seed);
        reader.read("-n", command.count_text, command.count,
                    [](const std::string& text) { return read_whole_number_within(text, 1, most_looks); });
        if (command.output && command.save_as)
            reader.refuse("--save", "cannot be combined with -o");
        if (command.count > 1 && !command.output && !command.save_as)
            reader.refuse("-n", "several looks need an output", "-o FOLDER or --save NAME");
    };
    return parse_or_explain(parser, arguments, out, settle);
}

/// "Idea", or "Idea 3" among several.
std::string numbered(const std::string& name, int look, int count)
{
    return count == 1 ? name : name + ' ' + std::to_string(look + 1);
}

/// Saves the look as a preset, writes it to a file, or prints it.
result<> keep_look(effect_instance& effect, const inspire_command& command, int look, console& out)
{
    if (command.save_as)
    {
        const std::string name = numbered(*command.save_as, look, command.count);
        if (!command.overwrite && effect.get_presets().preset_exists(name))
            return failure{failure_kind::cannot_write, name, "already exists", "use -f to replace it"};
        if (!effect.get_presets().save_preset(name, command.overwrite))
            return failure{failure_kind::cannot_write, name, effect.get_presets().get_failure()->reason};
        return {};
    }
    const std::string text = write_preset_text(effect.get());
    if (!command.output)
    {
        out.result(text + '\n');
        return {};
    }
    const bool folder = command.count > 1 || command.output->ends_with('/');
    // Looks in a folder are numbered from 1, even if there is only one.
    const std::string file = folder ? *command.output + "/Look " + std::to_string(look + 1) + ".json" : *command.output;
    return write_output(file, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, command.overwrite);
}

} // namespace

exit_code run_inspire(std::span<const std::string> arguments, console& out)
{
    inspire_command command;
    if (const auto end = parse(command, arguments, out))
        return *end;
    effect_instance effect;
    for (int look = 0; look < command.count; ++look)
    {
        effect.get().reset_to_default();
        if (command.seed)
        {
            // Each look has its own seed, so that look 5 of twelve can be made again alone.
            std::mt19937 engine(*command.seed + static_cast<std::uint32_t>(look));
            randomize_look(effect.get(), engine);
        }
        else
            randomize_look(effect.get());
        if (const auto kept = keep_look(effect, command, look, out); !kept)
            return fail(kept.error(), out);
    }
    return exit_code::done;
}

} // namespace ov1

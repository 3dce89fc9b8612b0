#include "host/simulator/verbs/render_verb.h"

#include "command_line/number.h"
#include "command_line/option_reader.h"
#include "command_line/program.h"
#include "host/simulator/verbs/hosted_effect.h"
#include "host/simulator/verbs/picture_file.h"

#import <Foundation/Foundation.h>

namespace ov1
{

namespace
{

constexpr int longest_tile = 1 << 15;

struct render_command
{
    simulator_request request;
    std::optional<std::string> output;
    std::optional<std::string> tile;
    std::optional<std::string> pixels;
    tile_options tiles;
};

/// Reads the options that have a value into the command; returns all failures together.
std::vector<failure> check(render_command& command)
{
    option_reader reader;
    int side = static_cast<int>(command.tiles.side);
    reader.read("--tile", command.tile, side,
                [](const std::string& text) { return read_whole_number_within(text, 0, longest_tile); });
    command.tiles.side = static_cast<std::size_t>(side);
    if (command.pixels == "float")
        command.tiles.format = surface_format::full_float;
    else if (command.pixels && *command.pixels != "half")
        reader.refuse(command.pixels->c_str(), "no such kind of pixels", "half or float");
    if (!command.output)
        reader.refuse("-o", "is missing", "name the rendered picture");
    return reader.take_failures();
}

std::optional<exit_code> parse(render_command& command, std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial-host render", "Renders a picture through the effect, as a video host does.",
                           "  veridial-host render photo.png -s \"Sky Strength=60\" -o out.png\n");
    add_simulator_options(parser, command.request);
    parser.text("-o,--output", command.output, "OUT", "the rendered picture");
    parser.group("Tiles");
    parser.text("--tile", command.tile, "N", "side of a tile in pixels, 0 for the whole picture; 512 if left out");
    parser.text("--pixels", command.pixels, "KIND",
                "half or float; the effect takes float tiles in memory order, so that their channels are others");
    if (const auto end = parse_or_explain(parser, arguments, out))
        return end;
    if (const auto failures = check(command); !failures.empty())
        return fail(failures, out);
    std::vector<std::string> outputs{*command.output};
    if (command.request.save_document)
        outputs.push_back(*command.request.save_document);
    if (const auto failures = check_simulator_request(command.request, outputs); !failures.empty())
        return fail(failures, out);
    return {};
}

exit_code render(const render_command& command, console& out)
{
    const auto file = read_picture(command.request.inputs[0]);
    if (!file)
        return fail(file.error(), out);
    // After the picture: a file that cannot be read needs no instance.
    hosted_effect effect;
    if (const auto failures = effect.open(command.request); !failures.empty())
        return fail(failures, out);
    const auto written = effect.render_to(*command.output, *file, command.tiles, command.request.overwrite);
    if (!written)
        return fail(written.error(), out);
    if (const auto saved = effect.save(command.request); !saved)
        return fail(saved.error(), out);
    return exit_code::done;
}

} // namespace

exit_code run_simulator_render(std::span<const std::string> arguments, console& out)
{
    @autoreleasepool
    {
        render_command command;
        if (const auto end = parse(command, arguments, out))
            return *end;
        return render(command, out);
    }
}

} // namespace ov1

#include "host/simulator/verbs/render_verb.h"

#include "command_line/choice.h"
#include "command_line/number.h"
#include "command_line/program.h"
#include "host/simulator/verbs/host_pictures.h"
#include "host/simulator/verbs/hosted_effect.h"

#import <Foundation/Foundation.h>

namespace ov1
{

namespace
{

constexpr int longest_tile = 1 << 15;

struct render_command
{
    host_request request;
    std::optional<std::string> output;
    std::optional<std::string> tile;
    std::optional<std::string> pixels;
    tile_options tiles;
};

bool settle(render_command& command, console& out, exit_code& code)
{
    std::vector<problem> problems;
    int side = static_cast<int>(command.tiles.side);
    problem why{exit_code::usage, "--tile", {}, {}};
    if (command.tile && !read_whole_number_within(*command.tile, 0, longest_tile, side, why))
        problems.push_back(why);
    command.tiles.side = static_cast<std::size_t>(side);
    if (command.pixels == "float")
        command.tiles.format = surface_format::full_float;
    else if (command.pixels && *command.pixels != "half")
        problems.push_back({exit_code::usage, *command.pixels, "no such kind of pixels", "half or float"});
    if (!command.output)
        problems.push_back({exit_code::usage, "-o", "is missing", "name the rendered picture"});
    code = fail(problems, out);
    return problems.empty();
}

bool parse(render_command& command, std::span<const std::string> arguments, console& out, exit_code& code)
{
    argument_parser parser("veridial-host render", "Renders a picture through the effect, as a video host does.",
                           "  veridial-host render photo.png -s \"Sky Strength=60\" -o out.png\n");
    add_host_options(parser, command.request);
    parser.text("-o,--output", command.output, "OUT", "the rendered picture");
    parser.group("Tiles");
    parser.text("--tile", command.tile, "N", "side of a tile in pixels, 0 for the whole picture; 512 if left out");
    parser.text("--pixels", command.pixels, "KIND",
                "half or float; the effect takes float tiles in memory order, so that their channels are others");
    if (!parse_or_explain(parser, arguments, out, code) || !settle(command, out, code))
        return false;
    std::vector<std::string> outputs{*command.output};
    if (command.request.save_document)
        outputs.push_back(*command.request.save_document);
    return settle_host_request(command.request, outputs, out, code);
}

exit_code told(const problem& why, console& out)
{
    out.error(why);
    return why.code;
}

exit_code render(const render_command& command, console& out)
{
    picture_file file;
    problem why;
    if (!read_picture(command.request.inputs[0], file, why))
        return told(why, out);
    hosted_effect effect;
    std::vector<problem> problems;
    if (!effect.open(command.request, problems))
        return fail(problems, out);
    host_picture rendered;
    host_error error;
    if (!effect.get().render(file.picture, rendered, command.tiles, error))
        return told({exit_code::unsupported, "the effect", error.description, {}}, out);
    if (!write_picture(*command.output, file, rendered, command.request.overwrite, why) ||
        !effect.save(command.request, why))
        return told(why, out);
    return exit_code::done;
}

} // namespace

exit_code run_host_render(std::span<const std::string> arguments, console& out)
{
    @autoreleasepool
    {
        render_command command;
        exit_code code = exit_code::done;
        return parse(command, arguments, out, code) ? render(command, out) : code;
    }
}

} // namespace ov1

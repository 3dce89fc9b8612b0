#include "standalone/verbs/sheet_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/console.h"
#include "command_line/number.h"
#include "command_line/run_options.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/preview_picture.h"
#include "standalone/sheets/canvas.h"
#include "standalone/sheets/canvas_output.h"
#include "standalone/sheets/sheet_cells.h"
#include "standalone/sheets/sheet_layout.h"
#include "standalone/sheets/text_painter.h"

#include <algorithm>

namespace ov1
{

namespace
{

constexpr int usual_width = 2400;
constexpr int least_width = 320;
constexpr int most_width = 20'000;
constexpr unsigned int caption_size = 14;
constexpr argb_float background{1.0f, 0.184f, 0.184f, 0.184f}; // the editor's grey, 47 of 255
constexpr argb_float caption_colour{1.0f, 0.75f, 0.75f, 0.75f};

/// The arguments of the verb.
struct sheet_command
{
    grade_request grade;
    run_options run;
    std::vector<std::string> inputs;
    std::optional<std::string> output;
    std::optional<std::string> width_text;
    int width = usual_width;
};

std::optional<exit_code> parse(sheet_command& command, std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial sheet",
                           "Draws a contact sheet of a picture: with every look at full and half strength, with the "
                           "presets given by -p, or before and after a grade.",
                           "  veridial sheet photo.jpg -o looks.png\n"
                           "  veridial sheet photo.jpg -p \"Golden Hour\" -p Noir -o presets.png\n"
                           "  veridial sheet photo.jpg --wheel shadows=205,40 --film 270,60 -o before_after.png\n");
    parser.positionals("INPUT", command.inputs, "a picture");
    add_grade_options(parser, command.grade);
    parser.group("Output");
    parser.text("-o,--output", command.output, "SHEET.png", "output picture");
    parser.text("--width", command.width_text, "PIXELS", "largest width of the sheet, by default 2400");
    add_run_options(parser, command.run);
    const auto settle = [&](option_reader& reader)
    {
        settle_run_options(command.run, out, reader);
        if (command.inputs.size() != 1)
            reader.refuse("INPUT", "exactly one picture is required");
        if (!command.output)
            reader.refuse("-o", "is missing", "name the output picture");
        reader.read("--width", command.width_text, command.width,
                    [](const std::string& text) { return read_whole_number_within(text, least_width, most_width); });
    };
    return parse_or_explain(parser, arguments, out, settle);
}

/// The cells of the sheet, and the number of columns.
std::vector<sheet_cell> cells_of(const sheet_command& command, std::size_t& columns)
{
    columns = look_columns;
    if (!asks_for_values(command.grade) && command.grade.presets.empty())
        return look_cells();
    if (!asks_for_values(command.grade))
        return preset_cells(command.grade.presets, columns);
    columns = 2;
    sheet_cell before{"before", {}};
    before.grade.bypass = true;
    return {before, {"after", command.grade}};
}

/// The picture, graded with the effect's current table, with its own alpha.
std::vector<argb_float> graded(effect_instance& effect, const media::reduced_picture& picture)
{
    std::vector<argb_float> pixels(picture.pixels.size());
    effect.get_renderer()->render_row(0, picture.pixels.data(), pixels.data(), pixels.size());
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i].a = picture.pixels[i].a;
    return pixels;
}

/// Draws all cells. Each grade starts from the defaults.
/// A failure leaves the sheet unfinished.
std::vector<failure> draw(canvas& sheet, const sheet_layout& layout, const std::vector<sheet_cell>& cells,
                          const media::reduced_picture& picture)
{
    effect_instance effect;
    text_painter captions(caption_size);
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        // A grade sets only what it names, so that the one before it must be cleared.
        effect.get().reset_to_default();
        if (auto failures = effect.apply(cells[i].grade); !failures.empty())
            return failures;
        const auto pixels = graded(effect, picture);
        const std::size_t left = layout.left_of(i), top = layout.top_of(i);
        sheet.paint(left, top, pixels.data(), picture.width, picture.height);
        captions.paint(sheet, left, top + layout.picture_height + caption_size + 3, cells[i].name, layout.picture_width,
                       caption_colour);
    }
    return {};
}

exit_code make_sheet(const sheet_command& command, console& out)
{
    media::still_reader source;
    if (const auto opened = source.open(command.inputs[0]); !opened)
        return fail(about(command.inputs[0], opened.error()), out);
    std::size_t columns = 0;
    const auto cells = cells_of(command, columns);
    // The layout comes first: the picture is reduced to the size of a cell once, and graded at that size.
    const auto layout = lay_out_sheet(cells.size(), columns, source.info().width, source.info().height,
                                      static_cast<std::size_t>(command.width));
    const auto picture = make_gradable_picture(source, layout.picture_width, layout.picture_height);

    canvas sheet(layout.width(), layout.height(), background);
    if (const auto failures = draw(sheet, layout, cells, picture); !failures.empty())
        return fail(failures, out);
    return write_canvas(sheet, *command.output, command.run, out);
}

} // namespace

exit_code run_sheet(std::span<const std::string> arguments, console& out)
{
    sheet_command command;
    if (const auto end = parse(command, arguments, out))
        return *end;
    if (const auto end = plan_single_output(*command.output, command.run, out))
        return *end;
    return make_sheet(command, out);
}

} // namespace ov1

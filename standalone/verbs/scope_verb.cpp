#include "standalone/verbs/scope_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/failure_line.h"
#include "command_line/number.h"
#include "command_line/run_options.h"
#include "framework/render_rows.h"
#include "scopes/scope_type.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/preview_picture.h"
#include "standalone/sheets/canvas_output.h"
#include "standalone/sheets/text_painter.h"

#include <algorithm>
#include <filesystem>

namespace ov1
{

namespace
{

constexpr int least_side = 64;
constexpr int most_side = 8192;
constexpr std::size_t longest_picture_side = 4096;
constexpr int side_of_thicker_lines = 1080; ///< of the shorter side: lines get 1 pixel wider with every 1080
constexpr int text_height = 12;             ///< in line widths
constexpr int caption_height = 22;          ///< in line widths
constexpr argb_float caption_colour{1.0f, 0.75f, 0.75f, 0.75f};
constexpr argb_float label_colour{1.0f, 0.6f, 0.6f, 0.6f};

/// A scope, its caption, and its size where none is asked for.
struct scope_kind
{
    scope_type type;
    const char* caption;
    const char* usual_size;
};

constexpr std::array<choice<scope_kind>, scope_type_count> scope_kinds{
    {{"waveform", {scope_type::waveform, "Waveform, luma", "960x540"}},
     {"parade", {scope_type::parade, "RGB parade", "960x540"}},
     {"vectorscope", {scope_type::vectorscope, "Vectorscope, BT.709, frames at 75 %", "640x664"}},
     {"histogram", {scope_type::histogram, "Histogram", "960x540"}}}};

struct picture_size
{
    int width = 0;
    int height = 0;
};

/// The arguments of the verb.
struct scope_command
{
    grade_request grade;
    run_options run;
    std::vector<std::string> inputs;
    std::optional<std::string> output;
    std::optional<std::string> type_text;
    std::optional<std::string> size_text;
    scope_kind kind = scope_kinds[0].value;
    bool skin_line = false;
    picture_size size;
};

/// "960x540".
result<picture_size> read_size(const std::string& text)
{
    const auto x = text.find_first_of("xX");
    if (x == std::string::npos)
        return failure{
            failure_kind::usage, {}, in_quotes(text) + " is not a size", "write WIDTHxHEIGHT, such as 960x540"};
    const auto width = read_whole_number_within(text.substr(0, x), least_side, most_side);
    if (!width)
        return width.error();
    const auto height = read_whole_number_within(text.substr(x + 1), least_side, most_side);
    if (!height)
        return height.error();
    return picture_size{*width, *height};
}

void settle_scope(scope_command& command, option_reader& reader)
{
    reader.read("--type", command.type_text, command.kind,
                [](const std::string& text) { return read_choice(text, scope_kinds); });
    if (!command.size_text)
        // After --type, because the usual size depends on it.
        command.size_text = command.kind.usual_size;
    reader.read("--size", command.size_text, command.size, read_size);
    if (command.skin_line && command.kind.type != scope_type::vectorscope)
        reader.refuse("--skin-line", "is for the vectorscope only", "add --type vectorscope");
    if (command.inputs.size() != 1)
        reader.refuse("INPUT", "exactly one picture is required");
    if (!command.output)
        reader.refuse("-o", "is missing", "name the output picture");
}

std::optional<exit_code> parse(scope_command& command, std::span<const std::string> arguments, console& out)
{
    argument_parser parser(
        "veridial scope",
        "Draws a scope of a picture, with a grade applied if one is given. Pictures of more than 4096 "
        "pixels on a side are scaled down first.",
        "  veridial scope photo.jpg -o waveform.png\n"
        "  veridial scope photo.jpg --type vectorscope --skin-line -o skin.png\n"
        "  veridial scope photo.jpg -p \"Golden Hour\" --type parade -o parade.png\n");
    parser.positionals("INPUT", command.inputs, "a picture");
    parser.group("Scope");
    parser.text("--type", command.type_text, "TYPE", choice_names(scope_kinds) + "; by default waveform");
    parser.text("--size", command.size_text, "WxH",
                "size of the output in pixels, by default 960x540, or 640x664 for a vectorscope");
    parser.flag("--skin-line", command.skin_line, "show the skin tone line on the vectorscope");
    add_grade_options(parser, command.grade);
    parser.group("Output");
    parser.text("-o,--output", command.output, "OUT.png", "output picture");
    add_run_options(parser, command.run);
    const auto settle = [&](option_reader& reader)
    {
        settle_run_options(command.run, out, reader);
        settle_scope(command, reader);
    };
    return parse_or_explain(parser, arguments, out, settle);
}

/// Reads the picture and applies the grade of the command line, unless there is none or it is bypassed.
std::vector<failure> read_picture(const scope_command& command, media::reduced_picture& picture)
{
    media::still_reader source;
    if (const auto opened = source.open(command.inputs[0]); !opened)
        return {about(command.inputs[0], opened.error())};
    effect_instance effect;
    if (auto failures = effect.apply(command.grade); !failures.empty())
        return failures;
    picture = make_gradable_picture(source, longest_picture_side, longest_picture_side);
    const bool is_graded = asks_for_values(command.grade) || !command.grade.presets.empty();
    if (!is_graded || effect.get().get_bypass())
        return {};
    render_rows(*effect.get_renderer(),
                picture_rows<argb_float>{.in = picture.pixels.data(),
                                         .out = picture.pixels.data(),
                                         .in_step = picture.width,
                                         .out_step = picture.width,
                                         .width = picture.width,
                                         .height = picture.height},
                static_cast<unsigned>(command.run.threads));
    return {};
}

/// The drawn scope, 0xRRGGBB with 8 bits per channel, as colours.
canvas to_canvas(const scope_picture& picture)
{
    canvas painted(static_cast<std::size_t>(picture.width), static_cast<std::size_t>(picture.height), {});
    std::vector<argb_float> row(static_cast<std::size_t>(picture.width));
    const auto channel = [](std::uint32_t byte) { return static_cast<float>(byte & 255) / 255; };
    for (int y = 0; y < picture.height; ++y)
    {
        for (std::size_t x = 0; x < row.size(); ++x)
        {
            const std::uint32_t p = picture.row(y)[x];
            row[x] = {1, channel(p >> 16), channel(p >> 8), channel(p)};
        }
        painted.paint(0, static_cast<std::size_t>(y), row.data(), row.size(), 1);
    }
    return painted;
}

/// Adds the caption and the scale. Without a font the scope stays without text.
void write_texts(const scope_command& command, const rect& area, int line_width, canvas& painted)
{
    text_painter texts(static_cast<unsigned>(text_height * line_width));
    if (!texts.has_face())
        return;
    const double half_capital = text_height * line_width * 0.36; // from the middle of a line of text to its baseline
    const std::string caption =
        std::string(command.kind.caption) + "  \u2013  " + std::filesystem::path(command.inputs[0]).filename().string();
    const auto margin = static_cast<std::size_t>(6 * line_width);
    texts.paint(painted, margin, static_cast<std::size_t>(area.y - 7 * line_width), caption,
                painted.get_width() - 2 * margin, caption_colour);
    for (const scope_label& label : scope_labels_of(command.kind.type, area, line_width))
    {
        const std::size_t width = texts.width_of(label.text);
        const double left = std::max(0.0, label.x - static_cast<double>(width) / 2);
        texts.paint(painted, static_cast<std::size_t>(left), static_cast<std::size_t>(label.y + half_capital),
                    label.text, width, label_colour);
    }
}

/// Lines and texts grow together with the picture, so that a large scope reads like a small one.
canvas draw(const scope_command& command, const media::reduced_picture& picture)
{
    const auto [width, height] = command.size;
    const int line_width = 1 + std::min(width, height) / side_of_thicker_lines;
    const int top = caption_height * line_width;
    const rect area{0, top, width, height - top};
    // The counts get the resolution of the drawing.
    scope_sampling sampling = sampling_for(area, line_width);
    sampling.max_threads = static_cast<unsigned>(command.run.threads);
    scope_selection selection;
    chosen(selection, command.kind.type) = true;
    scope_counter counter;
    counter.count({picture.pixels.data(), picture.width, picture.height}, selection, sampling);
    scope_picture drawn;
    drawn.reset(width, height);
    draw_scope(command.kind.type, counter.get_counts(), command.skin_line, area, line_width, drawn);
    canvas painted = to_canvas(drawn);
    write_texts(command, area, line_width, painted);
    return painted;
}

} // namespace

exit_code run_scope(std::span<const std::string> arguments, console& out)
{
    scope_command command;
    if (const auto end = parse(command, arguments, out))
        return *end;
    if (const auto end = plan_single_output(*command.output, command.run, out))
        return *end;
    media::reduced_picture picture;
    if (const auto failures = read_picture(command, picture); !failures.empty())
        return fail(failures, out);
    return write_canvas(draw(command, picture), *command.output, command.run, out);
}

} // namespace ov1

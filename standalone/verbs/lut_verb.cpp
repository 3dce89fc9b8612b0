#include "standalone/verbs/lut_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/file_output.h"
#include "command_line/json_text.h"
#include "command_line/run_options.h"
#include "effect/lut/cube_format.h"
#include "effect/lut/export_text.h"
#include "effect/lut/lut_argb_variable.h"
#include "effect/lut/threedl_format.h"
#include "framework/lut_exporter.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/hald_clut.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace ov1
{

namespace
{

constexpr const char* creator = "Veridial";

enum class table_format
{
    cube,
    threedl,
    hald_png,
};

constexpr std::array<choice<table_format>, 3> table_formats{
    {{".cube", table_format::cube}, {".3dl", table_format::threedl}, {".png", table_format::hald_png}}};

/// The arguments of the verb.
struct lut_request
{
    grade_request grade;
    run_options run;
    std::optional<std::string> output;
    std::optional<std::string> size_text;
    unsigned int size = 17;
    table_format format = table_format::cube;
};

/// The extension decides, in any case.
result<table_format> format_of(const std::string& path)
{
    const auto dot = path.rfind('.');
    std::string extension = dot == std::string::npos ? "" : path.substr(dot);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    for (const auto& known : table_formats)
        if (extension == known.name)
            return known.value;
    return failure{failure_kind::unsupported, path, "unsupported LUT format", "use .cube, .3dl or .png"};
}

/// Sets the format and the size.
result<> settle_table(lut_request& request)
{
    const auto format = format_of(*request.output);
    if (!format)
        return format.error();
    request.format = *format;
    if (!request.size_text)
        return {};
    // Refused instead of ignored: the user would expect the size that was asked for.
    if (request.format != table_format::cube)
        return failure{failure_kind::usage, "--size", "is for .cube only", "a .3dl has 17 points, a .png 64"};
    constexpr std::array<choice<unsigned int>, 2> sizes{{{"17", 17}, {"32", 32}}};
    const auto size = read_choice(*request.size_text, sizes);
    if (!size)
        return about("--size", size.error());
    request.size = *size;
    return {};
}

std::optional<exit_code> parse(lut_request& request, std::span<const std::string> arguments, console& out)
{
    argument_parser parser("veridial lut", "Exports a grade as a 3D LUT for other software.",
                           "  veridial lut --wheel shadows=220,40 -o teal.cube\n"
                           "  veridial lut -s \"Global Chroma=-30\" -o muted.png\n");
    add_grade_options(parser, request.grade);
    parser.group("Output");
    parser.text("-o,--output", request.output, "FILE", "output file: .cube, .3dl, or .png for a HaldCLUT");
    parser.text("--size", request.size_text, "17|32", "points per axis of a .cube, by default 17");
    add_run_options(parser, request.run);
    const auto settle = [&](option_reader& reader)
    {
        settle_run_options(request.run, out, reader);
        if (!request.output)
            reader.refuse("-o", "is missing", "name the output file, such as look.cube");
        else if (const auto settled = settle_table(request); !settled)
            reader.refuse(settled.error());
    };
    return parse_or_explain(parser, arguments, out, settle);
}

/// The bytes of the file. The failure has no subject.
result<std::vector<std::uint8_t>> encode(effect_instance& effect, const lut_request& request)
{
    if (request.format == table_format::hald_png)
        return make_hald_clut(*effect.get_renderer());
    // The table is asked for through the interface that the editor's export uses, so both export the same table.
    iobject* found = nullptr;
    lut_argb_variable table;
    if (!effect.get().query_interface("lut_exporter", &found) || !static_cast<lut_exporter*>(found)->get_lut(&table))
        return failure{failure_kind::cannot_write, {}, "the effect cannot export a table"};
    const std::string title = export_title(*request.output);
    const std::string text = request.format == table_format::cube ? cube_text(table, request.size, title, creator, "")
                                                                  : threedl_text(table, title, creator, "");
    return std::vector<std::uint8_t>(text.begin(), text.end());
}

void report(const lut_request& request, std::size_t bytes, console& out)
{
    const unsigned int points = request.format == table_format::cube      ? request.size
                                : request.format == table_format::threedl ? 17
                                                                          : 64;
    if (request.run.json)
    {
        json_text json;
        json.begin_object().key("output").value(*request.output).key("points").value(static_cast<int>(points));
        json.key("bytes").value(bytes).key("written").value(!request.run.dry_run).end();
        out.result(json.text() + '\n');
    }
    else if (request.run.dry_run)
        out.result("would write " + *request.output + ", " + std::to_string(points) + " points per axis\n");
    else
        out.note("wrote " + *request.output);
}

} // namespace

exit_code run_lut(std::span<const std::string> arguments, console& out)
{
    lut_request request;
    if (const auto end = parse(request, arguments, out))
        return *end;

    effect_instance effect;
    const std::string& path = *request.output;
    if (const auto end = plan_single_output(path, request.run, out, effect.apply(request.grade)))
        return *end;
    const auto bytes = encode(effect, request);
    if (!bytes)
        return fail(about(path, bytes.error()), out);
    if (!request.run.dry_run)
        if (const auto written = write_output(path, *bytes, request.run.overwrite); !written)
            return fail(written.error(), out);
    report(request, bytes->size(), out);
    return exit_code::done;
}

} // namespace ov1

#include "standalone/verbs/lut_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/json_text.h"
#include "command_line/output_plan.h"
#include "command_line/run_options.h"
#include "effect/lut/cube_format.h"
#include "effect/lut/export_text.h"
#include "effect/lut/lut_argb_variable.h"
#include "effect/lut/threedl_format.h"
#include "framework/lut_exporter.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/file_output.h"
#include "standalone/jobs/hald_clut.h"
#include "standalone/jobs/media_problem.h"

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

struct lut_request
{
    grade_request grade;
    run_options run;
    std::optional<std::string> output;
    std::optional<std::string> size_text;
    unsigned int size = 17;
    table_format format = table_format::cube;
};

bool settle_format(lut_request& request, problem& why)
{
    const std::string& path = *request.output;
    const auto dot = path.rfind('.');
    std::string extension = dot == std::string::npos ? "" : path.substr(dot);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    for (const auto& known : table_formats)
        if (extension == known.name)
        {
            request.format = known.value;
            return true;
        }
    why = {exit_code::unsupported, path, "no table is written in this format", "name it .cube, .3dl or .png"};
    return false;
}

bool settle_size(lut_request& request, problem& why)
{
    if (!request.size_text)
        return true;
    why = {exit_code::usage, "--size", {}, {}};
    if (request.format != table_format::cube)
    {
        why.reason = "goes with .cube alone";
        why.hint = "a .3dl has 17 points, a .png 64";
        return false;
    }
    constexpr std::array<choice<unsigned int>, 2> sizes{{{"17", 17}, {"32", 32}}};
    return read_choice(*request.size_text, sizes, request.size, why);
}

bool parse(lut_request& request, std::span<const std::string> arguments, console& out, exit_code& code)
{
    argument_parser parser("veridial lut", "Writes a grade as a table that other software reads.",
                           "  veridial lut --wheel shadows=220,40 -o teal.cube\n"
                           "  veridial lut -s \"Global Chroma=-30\" -o muted.png\n");
    add_grade_options(parser, request.grade);
    parser.group("Output");
    parser.text("-o,--output", request.output, "FILE", "where to: .cube, .3dl, or .png for a HaldCLUT");
    parser.text("--size", request.size_text, "17|32", "points per axis of a .cube, 17 unless asked");
    add_run_options(parser, request.run);
    if (!parse_or_explain(parser, arguments, out, code))
        return false;

    std::vector<problem> problems;
    bool sound = settle_run_options(request.run, out, problems);
    if (problem why; !request.output)
    {
        problems.push_back({exit_code::usage, "-o", "is missing", "it names the file to write, such as look.cube"});
        sound = false;
    }
    else if (!settle_format(request, why) || !settle_size(request, why))
    {
        problems.push_back(why);
        sound = false;
    }
    code = fail(problems, out);
    return sound;
}

bool encode(effect_instance& effect, const lut_request& request, std::vector<std::uint8_t>& bytes, problem& why)
{
    if (request.format == table_format::hald_png)
    {
        auto made = make_hald_clut(*effect.get_renderer());
        if (made)
            bytes = std::move(*made);
        else
            why = problem_of(made.error(), *request.output);
        return static_cast<bool>(made);
    }
    iobject* found = nullptr;
    lut_argb_variable table;
    if (!effect.get().query_interface("lut_exporter", &found) || !static_cast<lut_exporter*>(found)->get_lut(&table))
    {
        why = {exit_code::cannot_write, *request.output, "the effect gives no table", {}};
        return false;
    }
    const std::string title = export_title(*request.output);
    const std::string text = request.format == table_format::cube ? cube_text(table, request.size, title, creator, "")
                                                                  : threedl_text(table, title, creator, "");
    bytes.assign(text.begin(), text.end());
    return true;
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
    exit_code code = exit_code::done;
    if (!parse(request, arguments, out, code))
        return code;

    effect_instance effect;
    std::vector<problem> problems;
    output_job job;
    const output_rules rules{request.run.overwrite, request.run.no_clobber, request.run.dry_run};
    const bool graded = effect.apply(request.grade, problems);
    if (!plan_output(*request.output, rules, job, problems) || !graded)
        return fail(problems, out);
    if (job.skipped)
    {
        out.note(job.output + " exists and is left");
        return exit_code::done;
    }

    std::vector<std::uint8_t> bytes;
    problem why;
    if (!encode(effect, request, bytes, why) ||
        (!request.run.dry_run && !write_output(job.output, bytes, request.run.overwrite, why)))
    {
        out.error(why);
        return why.code;
    }
    report(request, bytes.size(), out);
    return exit_code::done;
}

} // namespace ov1

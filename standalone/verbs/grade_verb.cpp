#include "standalone/verbs/grade_verb.h"

#include "command_line/argument_parser.h"
#include "command_line/choice.h"
#include "command_line/console.h"
#include "command_line/json_text.h"
#include "command_line/number.h"
#include "command_line/option_reader.h"
#include "command_line/run_options.h"
#include "media/stills/input_kind.h"
#include "standalone/jobs/effect_instance.h"
#include "standalone/jobs/frames_job.h"
#include "standalone/jobs/grade_plan.h"
#include "standalone/jobs/grade_steps.h"
#include "standalone/jobs/job_report.h"
#include "standalone/jobs/picture_job.h"

#include <array>
#include <unistd.h>

namespace ov1
{

namespace
{

constexpr std::array<choice<media::transfer_choice>, 3> transfers{{{"auto", media::transfer_choice::automatic},
                                                                   {"none", media::transfer_choice::none},
                                                                   {"linear", media::transfer_choice::linear}}};
constexpr std::array<choice<media::depth>, 6> depths{{{"8", media::depth::u8},
                                                      {"10", media::depth::u10},
                                                      {"12", media::depth::u12},
                                                      {"16", media::depth::u16},
                                                      {"half", media::depth::half},
                                                      {"float", media::depth::full_float}}};
constexpr std::array<choice<media::range_choice>, 3> ranges{{{"auto", media::range_choice::automatic},
                                                             {"full", media::range_choice::full},
                                                             {"limited", media::range_choice::limited}}};
constexpr std::array<choice<media::matrix_choice>, 4> matrices{{{"auto", media::matrix_choice::automatic},
                                                                {"601", media::matrix_choice::bt601},
                                                                {"709", media::matrix_choice::bt709},
                                                                {"2020", media::matrix_choice::bt2020}}};

struct grade_command
{
    grade_request grade;
    run_options run;
    std::vector<std::string> inputs;
    std::optional<std::string> output, transfer, depth, quality, pixel_format, codec, range, matrix, frames,
        input_table;
    media::write_request format;
    media::clip_request clip;
};

/// Declares all options in the order in which the help shows them.
void declare(argument_parser& parser, grade_command& command)
{
    parser.positionals("INPUT", command.inputs,
                       "pictures and clips (PNG, JPEG, TIFF, EXR, DPX, MOV, MP4, MKV and others), or folders of them");
    add_grade_options(parser, command.grade);
    parser.group("Output");
    parser.text("-o,--output", command.output, "OUT|DIR", "output file, or the folder for several inputs");
    parser.text("--codec", command.codec, "NAME",
                "video codec, by default the source's: h264, hevc, av1, vp9, prores[_hq ..], dnxhr[_hqx ..], ffv1, ..");
    parser.text("--depth", command.depth, choice_names(depths), "bits per sample, by default the source's");
    parser.text("--quality", command.quality, "N",
                "1 to 100, for JPEG (default 95) and for video codecs with a quality setting");
    parser.text("--pix-fmt", command.pixel_format, "F", "pixel format by its libav name, such as yuv422p10le");
    parser.text("--frames", command.frames, "A-B",
                "first and last frame, of numbered frames (shot.%04d.exr) or of a clip that is written as frames");
    parser.group("Input");
    parser.text("--input-lut", command.input_table, "FILE.cube",
                "LUT to apply before the grade, such as a conversion from log");
    parser.text("--transfer", command.transfer, choice_names(transfers),
                "how code values relate to light; auto: linear for EXR and for files that are tagged linear");
    parser.text("--range", command.range, choice_names(ranges), "range of a clip's code values; overrides its tag");
    parser.text("--matrix", command.matrix, choice_names(matrices), "YCbCr matrix of a clip; overrides its tag");
    add_run_options(parser, command.run);
}

/// Reads the options' texts, and refuses what is wrong with them.
void settle(grade_command& command, console& out, option_reader& reader)
{
    const auto one_of = [](const auto& choices)
    { return [&choices](const std::string& text) { return read_choice(text, choices); }; };
    settle_run_options(command.run, out, reader);
    if (command.inputs.empty())
        reader.refuse("INPUT", "is missing", "name at least one picture or clip");
    if (!command.output)
        reader.refuse("-o", "is missing", "name the output file or folder");
    reader.read("--transfer", command.transfer, command.format.transfer, one_of(transfers));
    reader.read("--range", command.range, command.clip.range, one_of(ranges));
    reader.read("--matrix", command.matrix, command.clip.matrix, one_of(matrices));
    reader.read("--depth", command.depth, command.format.depth, one_of(depths));
    reader.read("--quality", command.quality, command.format.quality,
                [](const std::string& text) { return read_whole_number_within(text, 1, 100); });
    command.format.pixel_format = command.pixel_format.value_or("");
    command.clip.codec = command.codec.value_or("");
    // Options that mean the same for pictures and clips are given to both: the input decides which one applies.
    command.clip.depth = command.format.depth;
    command.clip.quality = command.format.quality;
    command.clip.pixel_format = command.format.pixel_format;
    command.clip.threads = static_cast<unsigned int>(command.run.threads);
}

/// Grades the inputs one after the other, pictures and clips alike.
/// Holds the settings that all jobs share, made once from the command.
class job_runner
{
public:
    job_runner(const grade_command& command, const grade_steps& steps, console& out)
        : command(command)
        , out(out)
    {
        const auto threads = static_cast<unsigned int>(command.run.threads);
        picture = {.grade = steps.for_stills(),
                   .format = command.format,
                   .overwrite = command.run.overwrite,
                   .dry_run = command.run.dry_run,
                   .threads = threads};
        clip = {.grade = steps.for_clips(),
                .format = command.clip,
                .overwrite = command.run.overwrite,
                .dry_run = command.run.dry_run,
                .threads = threads,
                .progress = command.run.progress,
                .is_terminal = isatty(STDERR_FILENO) != 0};
    }

    exit_code run_into_frames(const grade_plan& plan, json_text& json)
    {
        const output_job& job = plan.outputs.jobs.front();
        const clip_result result = grade_clip_into_frames(plan, picture, clip, command.run.no_clobber, out);
        report_clip(job, result, command.run, out);
        add_clip_json(json, job, result);
        return result.code();
    }

    exit_code run(const output_job& job, json_text& json)
    {
        if (!job.skipped && media::input_kind_of(job.input) == media::input_kind::clip)
        {
            const clip_result result = grade_clip_file(job, clip, out);
            report_clip(job, result, command.run, out);
            add_clip_json(json, job, result);
            return result.code();
        }
        const picture_result result = job.skipped ? picture_result{} : grade_picture(job, picture);
        report_picture(job, result, command.run, out);
        add_picture_json(json, job, result, command.run.dry_run);
        return result.code();
    }

private:
    const grade_command& command;
    console& out;
    picture_settings picture;
    clip_settings clip;
};

/// A failed input does not stop the others; the exit code tells whether all of them failed alike.
exit_code run_jobs(const grade_plan& plan, const grade_command& command, const grade_steps& steps, console& out)
{
    // Counts inputs; the progress within a clip is shown by its own job.
    progress bar(out, command.run.progress, isatty(STDERR_FILENO) != 0, plan.outputs.jobs.size());
    job_runner runner(command, steps, out);
    std::vector<exit_code> outcomes;
    json_text json;
    json.begin_array();
    for (const output_job& job : plan.outputs.jobs)
    {
        outcomes.push_back(plan.into_frames ? runner.run_into_frames(plan, json) : runner.run(job, json));
        bar.step(job.input, outcomes.back() == exit_code::done);
    }
    if (command.run.json)
        out.result(json.end().text() + '\n');
    return common_exit_code(outcomes);
}

} // namespace

exit_code run_grade(std::span<const std::string> arguments, console& out)
{
    grade_command command;
    argument_parser parser("veridial grade", "Applies a grade to pictures and clips.",
                           "  veridial grade photo.jpg -s \"Shadows Hue=220\" -s \"Shadows Chroma=40\" -o out.png\n"
                           "  veridial grade *.tif --wheel highlights=40,25 --film 270,60 -o graded/\n"
                           "  veridial grade clip.mov --input-lut log.cube --sky 90,50 -o graded.mov\n"
                           "  veridial grade shot.%04d.exr --frames 101-200 -p Autumn -o out.%04d.exr\n");
    declare(parser, command);
    const auto settle_command = [&](option_reader& reader) { settle(command, out, reader); };
    if (const auto end = parse_or_explain(parser, arguments, out, settle_command))
        return *end;

    effect_instance effect;
    grade_steps steps;
    grade_plan plan;
    auto failures = effect.apply(command.grade);
    if (command.input_table)
    {
        if (auto table = read_input_table(*command.input_table))
            steps.input = *std::move(table);
        else
            failures.push_back(table.error());
    }
    // Mistakes in the grade, the input LUT and the outputs are reported together.
    const auto refused = plan_grade({command.inputs, *command.output, command.frames}, rules_of(command.run), plan);
    failures.insert(failures.end(), refused.begin(), refused.end());
    if (!failures.empty())
        return fail(failures, out);
    // Only after all checks: a refused run leaves no empty folder.
    if (!command.run.dry_run)
        if (const auto made = make_new_folder(plan.outputs); !made)
            return fail(made.error(), out);
    // Without the effect and an input LUT there is no step at all, and samples pass unchanged, bit by bit.
    steps.effect = effect.get().get_bypass() ? nullptr : effect.get_renderer();
    return run_jobs(plan, command, steps, out);
}

} // namespace ov1

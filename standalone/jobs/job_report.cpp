#include "standalone/jobs/job_report.h"

#include "command_line/json_text.h"
#include "command_line/number.h"
#include "command_line/run_options.h"

#include <cmath>

namespace ov1
{

namespace
{

/// These words are part of the JSON output: scripts read them.
const char* word_of(media::stream_fate fate)
{
    switch (fate)
    {
    case media::stream_fate::graded:
        return "graded";
    case media::stream_fate::copied:
        return "copied";
    case media::stream_fate::remade:
        return "written anew";
    case media::stream_fate::left_out:
        break;
    }
    return "left out";
}

std::string clip_text(const media::clip_info& info)
{
    std::string text = std::to_string(info.width) + " x " + std::to_string(info.height);
    if (info.frames_per_second > 0)
        // Three decimals tell 23.976 from 24 and hide the rounding of 24000/1001.
        text += ", " + number_text(std::round(info.frames_per_second * 1000) / 1000) + " fps";
    return text + ", " + info.container + (info.codec.empty() ? "" : ' ' + info.codec) + ' ' + info.pixel_format;
}

/// A line for each stream, after a line feed.
std::string stream_lines(const clip_result& result)
{
    std::string text;
    for (const media::clip_stream& stream : result.streams)
        text +=
            "\n  " + stream.name + ": " + word_of(stream.fate) + (stream.note.empty() ? "" : " (" + stream.note + ")");
    return text;
}

/// Size, format and depth of an output.
std::string picture_text(const media::still_info& info)
{
    return std::to_string(info.width) + " x " + std::to_string(info.height) + ", " + info.format_name + ' ' +
           std::string(name_of(info.depth));
}

/// The texts of an output that was written, and of one that a dry run would write.
struct output_texts
{
    std::string written;
    std::string planned;
};

void report(const output_job& job, const job_outcome& outcome, const output_texts& texts, const run_options& run,
            console& out)
{
    for (const failure& warning : outcome.warnings)
        out.warning(warning);
    if (outcome.failed)
        out.error(*outcome.failed);
    else if (job.skipped)
        note_skipped(job.output, out);
    else if (!run.dry_run)
        out.note("wrote " + job.output + ": " + texts.written);
    else if (!run.json)
        out.result("would write " + job.output + ": " + texts.planned + '\n');
}

/// The object of a job; what only an output has is added by the function.
template <typename Add>
void add_json(json_text& json, const output_job& job, const job_outcome& outcome, exit_code code, const Add& add_output)
{
    json.begin_object().key("input").value(job.input).key("output").value(job.output);
    json.key("exit_code").value(static_cast<int>(code));
    if (outcome.failed)
        json.key("error").value(outcome.failed->reason);
    else if (job.skipped)
        json.key("skipped").value(true);
    else
        add_output();
    json.key("warnings").begin_array();
    for (const failure& warning : outcome.warnings)
        json.value(warning.reason);
    json.end().end();
}

} // namespace

void report_picture(const output_job& job, const picture_result& result, const run_options& run, console& out)
{
    const std::string text = picture_text(result.written);
    report(job, result, {text, text}, run, out);
}

void report_clip(const output_job& job, const clip_result& result, const run_options& run, console& out)
{
    const std::string text = clip_text(result.written);
    report(job, result, {text + ", " + std::to_string(result.frames) + " frames", text + stream_lines(result)}, run,
           out);
}

void add_picture_json(json_text& json, const output_job& job, const picture_result& result, bool is_dry_run)
{
    add_json(json, job, result, result.code(),
             [&]
             {
                 const media::still_info& written = result.written;
                 json.key("written").value(!is_dry_run);
                 json.key("width").value(written.width).key("height").value(written.height);
                 json.key("format").value(written.format_name).key("depth").value(name_of(written.depth));
                 json.key("limited_pixels").value(static_cast<std::size_t>(result.limited_pixels));
             });
}

void add_clip_json(json_text& json, const output_job& job, const clip_result& result)
{
    add_json(json, job, result, result.code(),
             [&]
             {
                 const media::clip_info& written = result.written;
                 json.key("written").value(result.is_written);
                 json.key("width").value(written.width).key("height").value(written.height);
                 json.key("container").value(written.container).key("codec").value(written.codec);
                 json.key("pixel_format").value(written.pixel_format);
                 json.key("frames").value(static_cast<std::size_t>(result.frames));
                 json.key("damages").value(result.damages);
                 json.key("streams").begin_array();
                 for (const media::clip_stream& stream : result.streams)
                     json.begin_object().key("name").value(stream.name).key("fate").value(word_of(stream.fate)).end();
                 json.end();
             });
}

} // namespace ov1

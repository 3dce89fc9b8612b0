#include "standalone/jobs/clip_report.h"

#include "command_line/json_text.h"
#include "command_line/number.h"

#include <cmath>

namespace ov1
{

namespace
{

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
        text += ", " + number_text(std::round(info.frames_per_second * 1000) / 1000) + " fps";
    return text + ", " + info.container + (info.codec.empty() ? "" : ' ' + info.codec) + ' ' + info.pixel_format;
}

std::string stream_lines(const clip_result& result)
{
    std::string text;
    for (const media::clip_stream& stream : result.streams)
        text += "  " + stream.name + ": " + word_of(stream.fate) +
                (stream.note.empty() ? "" : " (" + stream.note + ")") + '\n';
    return text;
}

} // namespace

void report_clip(const output_job& job, const clip_result& result, bool is_dry_run, bool as_json, console& out)
{
    for (const failure& warning : result.warnings)
        out.warning(warning);
    if (result.failed)
        out.error(*result.failed);
    else if (job.skipped)
        out.note(job.output + " already exists, skipped");
    else if (is_dry_run && !as_json)
        out.result("would write " + job.output + ": " + clip_text(result.written) + '\n' + stream_lines(result));
    else if (!is_dry_run)
        out.note("wrote " + job.output + ": " + clip_text(result.written) + ", " + std::to_string(result.frames) +
                 " frames");
}

void add_clip_json(json_text& json, const output_job& job, const clip_result& result)
{
    json.begin_object().key("input").value(job.input).key("output").value(job.output);
    json.key("exit_code").value(static_cast<int>(result.code()));
    if (result.failed)
        json.key("error").value(result.failed->reason);
    else if (job.skipped)
        json.key("skipped").value(true);
    else
    {
        json.key("written").value(result.is_written);
        json.key("width").value(result.written.width).key("height").value(result.written.height);
        json.key("container").value(result.written.container).key("codec").value(result.written.codec);
        json.key("pixel_format").value(result.written.pixel_format);
        json.key("frames").value(static_cast<std::size_t>(result.frames)).key("damages").value(result.damages);
        json.key("streams").begin_array();
        for (const media::clip_stream& stream : result.streams)
            json.begin_object().key("name").value(stream.name).key("fate").value(word_of(stream.fate)).end();
        json.end();
    }
    json.key("warnings").begin_array();
    for (const failure& warning : result.warnings)
        json.value(warning.reason);
    json.end().end();
}

} // namespace ov1

#include "standalone/jobs/picture_job.h"

#include "command_line/file_output.h"
#include "standalone/jobs/threaded_pieces.h"

#include <utility>

namespace ov1
{

namespace
{

/// The result with its failure, keeping the warnings so far.
picture_result failed(picture_result result, const std::string& subject, const failure& why)
{
    result.failed = about(subject, why);
    return result;
}

void warn(picture_result& result, const std::string& subject, const std::string& text)
{
    if (!text.empty())
        result.warnings.push_back({.subject = subject, .reason = text});
}

} // namespace

picture_result grade_picture(const output_job& job, const picture_settings& settings)
{
    media::still_reader source;
    if (const auto read = source.open(job.input); !read)
        return failed({}, job.input, read.error());
    return grade_read_picture(source, job, settings);
}

picture_result grade_read_picture(const media::still_reader& source, const output_job& job,
                                  const picture_settings& settings)
{
    picture_result result;
    media::still_writer target;
    for (const std::string& note : source.warnings())
        warn(result, job.input, note);
    if (const auto created = target.create(job.output, source.info(), settings.format); !created)
        return failed(result, job.output, created.error());
    // Warnings about reading name the input, those about writing the output.
    warn(result, job.output, target.warning());
    result.written = target.info();
    // Up to here nothing is rendered or written.
    if (settings.dry_run)
        return result;

    const auto report =
        media::grade_still(source, target, settings.grade, settings.format.transfer, run_on_threads(settings.threads));
    result.limited_pixels = report.limited_pixels;
    for (const std::string& warning : report.warnings)
        warn(result, job.input, warning);

    const auto bytes = target.finish();
    if (!bytes)
        return failed(result, job.output, bytes.error());
    // The output is opened only when all bytes are there: no failure before this touches an existing file.
    if (const auto written = write_output(job.output, *bytes, settings.overwrite); !written)
        result.failed = written.error();
    return result;
}

} // namespace ov1

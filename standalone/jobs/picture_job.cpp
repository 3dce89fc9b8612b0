#include "standalone/jobs/picture_job.h"

#include "platform/rows.h"
#include "standalone/jobs/file_output.h"

#include <utility>

namespace ov1
{

namespace
{

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
    warn(result, job.output, target.warning());
    result.written = target.info();
    if (settings.dry_run)
        return result;

    const auto on_all = [&](std::size_t pieces, const std::function<void(std::size_t)>& work)
    {
        for_each_row_piece(pieces, 1, settings.threads,
                           [&](std::size_t first, std::size_t end)
                           {
                               for (std::size_t piece = first; piece < end; ++piece)
                                   work(piece);
                           });
    };
    const auto report = media::grade_still(source, target, settings.grade, settings.format.transfer, on_all);
    result.limited_pixels = report.limited_pixels;
    for (const std::string& warning : report.warnings)
        warn(result, job.input, warning);

    const auto bytes = target.finish();
    if (!bytes)
        return failed(result, job.output, bytes.error());
    if (const auto written = write_output(job.output, *bytes, settings.overwrite); !written)
        result.failed = written.error();
    return result;
}

} // namespace ov1

#include "standalone/sheets/canvas_output.h"

#include "command_line/console.h"
#include "command_line/file_output.h"
#include "command_line/json_text.h"
#include "command_line/program.h"
#include "command_line/run_options.h"
#include "media/stills/encode_still.h"

namespace ov1
{

namespace
{

/// The canvas is opaque: the format's usual depth is used, without alpha.
result<std::vector<std::uint8_t>> encode(const canvas& painted, const std::string& path)
{
    media::still_info info;
    info.width = painted.get_width();
    info.height = painted.get_height();
    return media::encode_still(path, info, [&](std::size_t y, std::size_t) { return painted.row(y); });
}

void report(const run_options& run, const std::string& output, const canvas& painted, console& out)
{
    if (run.json)
    {
        json_text json;
        json.begin_object().key("output").value(output).key("written").value(!run.dry_run);
        json.key("width").value(painted.get_width()).key("height").value(painted.get_height()).end();
        out.result(json.text() + '\n');
    }
    else if (run.dry_run)
        out.result("would write " + output + '\n');
    else
        out.note("wrote " + output);
}

} // namespace

exit_code write_canvas(const canvas& painted, const std::string& path, const run_options& run, console& out)
{
    const auto bytes = encode(painted, path);
    if (!bytes)
        return fail(about(path, bytes.error()), out);
    if (!run.dry_run)
        if (const auto written = write_output(path, *bytes, run.overwrite); !written)
            return fail(written.error(), out);
    report(run, path, painted, out);
    return exit_code::done;
}

} // namespace ov1

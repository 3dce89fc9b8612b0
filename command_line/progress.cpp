#include "command_line/progress.h"

#include "command_line/console.h"
#include "command_line/failure_line.h"
#include "command_line/json_text.h"

#include <algorithm>

namespace ov1
{

namespace
{

// Leaves room for the count on a line of 80 columns.
constexpr std::size_t bar_cells = 40;

} // namespace

progress::progress(console& out, progress_style style, bool is_terminal, std::size_t total)
    : out(out)
    , shown(style == progress_style::plain                                                      ? form::plain
            : style == progress_style::json                                                     ? form::json
            : style == progress_style::automatic && is_terminal && total > 1 && !out.is_quiet() ? form::bar
                                                                                                : form::none)
    , total(total)
{
    if (shown == form::bar)
        out.status(progress_bar(0, total, bar_cells));
}

progress::~progress()
{
    if (shown == form::bar)
        out.status({});
}

void progress::step(const std::string& input, bool succeeded)
{
    const std::scoped_lock lock(mutex);
    // Under the lock together with the output, so that the counts appear in ascending order.
    done = std::min(done + 1, total);
    const std::string count = std::to_string(done) + " of " + std::to_string(total);
    switch (shown)
    {
    case form::bar:
        out.status(progress_bar(done, total, bar_cells));
        break;
    case form::plain:
        out.raw_line(count + ": " + in_quotes(input) + (succeeded ? "" : " failed"));
        break;
    case form::json:
        out.raw_line(json_text()
                         .begin_object()
                         .key("done")
                         .value(done)
                         .key("total")
                         .value(total)
                         .key("input")
                         .value(input)
                         .key("ok")
                         .value(succeeded)
                         .end()
                         .text());
        break;
    case form::none:
        break;
    }
}

std::string progress_bar(std::size_t done, std::size_t total, std::size_t cells)
{
    const std::size_t full = total == 0 ? cells : done * cells / total;
    std::string bar = '[' + std::string(full, '=');
    if (full < cells)
        // The arrow shows a run in progress even before the first cell is full.
        bar += '>' + std::string(cells - full - 1, ' ');
    return bar + "] " + std::to_string(done) + " of " + std::to_string(total);
}

} // namespace ov1

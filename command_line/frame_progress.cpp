#include "command_line/frame_progress.h"

#include "command_line/console.h"
#include "command_line/failure_line.h"
#include "command_line/json_text.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

constexpr std::size_t bar_cells = 30;

/// Independent of the locale, unlike printf.
std::string one_decimal(double value)
{
    const auto tenths = static_cast<std::uint64_t>(std::llround(value * 10));
    return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10);
}

/// Assumes that the frames to come take as long as those done; done must not be 0.
double seconds_left(std::uint64_t done, std::uint64_t total, double elapsed_s)
{
    return elapsed_s * static_cast<double>(total - std::min(done, total)) / static_cast<double>(done);
}

} // namespace

std::string duration_text(double seconds)
{
    const auto whole = static_cast<std::uint64_t>(std::llround(std::max(0.0, seconds)));
    const auto two = [](std::uint64_t n) { return std::to_string(100 + n).substr(1); };
    const std::uint64_t minutes = whole / 60;
    if (minutes < 60)
        return std::to_string(minutes) + ':' + two(whole % 60);
    return std::to_string(minutes / 60) + ':' + two(minutes % 60) + ':' + two(whole % 60);
}

std::string frame_progress_text(std::uint64_t done, std::uint64_t total, double elapsed_s, std::size_t cells)
{
    // Containers can understate their length: more frames than the total still show a full bar.
    std::string text = total == 0 ? std::to_string(done) + " frames"
                                  : progress_bar(static_cast<std::size_t>(std::min(done, total)),
                                                 static_cast<std::size_t>(total), cells);
    if (done > 0 && elapsed_s > 0)
    {
        text += ", " + one_decimal(static_cast<double>(done) / elapsed_s) + " fps";
        if (total != 0)
            text += ", " + duration_text(seconds_left(done, total, elapsed_s)) + " left";
    }
    return text;
}

frame_progress::frame_progress(console& out, progress_style asked, bool is_terminal, const std::string& input,
                               std::uint64_t total)
    : out(out)
    , style(asked == progress_style::automatic && (!is_terminal || out.is_quiet()) ? progress_style::none : asked)
    , input(input)
    , total(total)
{
}

frame_progress::~frame_progress()
{
    if (style == progress_style::automatic)
        out.status({});
}

void frame_progress::step(std::uint64_t done)
{
    if (style == progress_style::none)
        return;
    const auto now = clock::now();
    // The last frame is always shown, so that the bar does not stop just short of its end.
    if (now < next && done != total)
        return;
    using namespace std::chrono_literals;
    next = now + (style == progress_style::automatic ? 100ms : style == progress_style::json ? 500ms : 2000ms);
    show(done, std::chrono::duration<double>(now - begin).count());
}

void frame_progress::show(std::uint64_t done, double elapsed_s)
{
    if (style == progress_style::automatic)
        return out.status(frame_progress_text(done, total, elapsed_s, bar_cells));
    if (style == progress_style::plain)
        return out.raw_line(in_quotes(input) + ": " + frame_progress_text(done, total, elapsed_s, bar_cells));
    json_text json;
    json.begin_object().key("input").value(input).key("frames").value(static_cast<std::size_t>(done));
    if (total != 0)
        json.key("total_frames").value(static_cast<std::size_t>(total));
    if (elapsed_s > 0)
        json.key("fps").value(static_cast<double>(done) / elapsed_s);
    if (elapsed_s > 0 && total != 0)
        json.key("seconds_left").value(seconds_left(done, total, elapsed_s));
    out.raw_line(json.end().text());
}

} // namespace ov1

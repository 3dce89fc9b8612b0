// Progress within a clip: frames, rate and time left.
#pragma once

#include "command_line/progress.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace ov1
{

class console;

/// "[====>   ] 120 of 500, 24.5 fps, 0:15 left", with a bar of `cells` characters; "120 frames, 24.5 fps" where the
/// total is 0, that is, unknown. Before the first frame there is no rate.
std::string frame_progress_text(std::uint64_t done, std::uint64_t total, double elapsed_s, std::size_t cells);

/// Hours, minutes and seconds: "1:02:03", "2:03".
/// Rounded to whole seconds; a negative duration counts as 0.
std::string duration_text(double seconds);

/// Reports the frames of one clip: ten times a second as a bar on a terminal, every 0.5 s as JSON, every 2 s as plain
/// lines. One thread.
class frame_progress
{
public:
    /// total is 0 where the number of frames is unknown; is_terminal says whether stderr is a terminal.
    frame_progress(console& out, progress_style style, bool is_terminal, const std::string& input, std::uint64_t total);
    ~frame_progress();
    frame_progress(const frame_progress&) = delete;
    frame_progress& operator=(const frame_progress&) = delete;

    /// The number of frames done so far.
    /// Cheap to call for each frame: it prints only when an interval has passed, and always at the last of a known
    /// total.
    void step(std::uint64_t done);

private:
    using clock = std::chrono::steady_clock;

    void show(std::uint64_t done, double elapsed_s);

    console& out;
    progress_style style;
    std::string input;
    std::uint64_t total;
    clock::time_point begin = clock::now();
    // Before this moment step() prints nothing.
    clock::time_point next = begin;
};

} // namespace ov1

// How far a clip has come: frames, rate and time left.
#pragma once

#include "command_line/progress.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace ov1
{

class console;

/// "[====>   ] 120 of 500, 24.5 fps, 0:15 left"; without a total "120 frames, 24.5 fps". Rates before the first frame
/// and the time left of a clip whose length is unknown are left out.
std::string frame_progress_text(std::uint64_t done, std::uint64_t total, double elapsed_s, std::size_t cells);

/// "1:02:03", "2:03".
std::string duration_text(double seconds);

/// Reports the frames of one clip from time to time: on a terminal some times a second, on lines of their own now and
/// then. One thread.
class frame_progress
{
public:
    /// Of so many frames, 0 if that is unknown. Whether stderr is a terminal is the caller's to know.
    frame_progress(console& out, progress_style style, bool is_terminal, const std::string& input, std::uint64_t total);
    ~frame_progress();
    frame_progress(const frame_progress&) = delete;
    frame_progress& operator=(const frame_progress&) = delete;

    /// So many frames are done.
    void step(std::uint64_t done);

private:
    using clock = std::chrono::steady_clock;

    void show(std::uint64_t done, double elapsed_s);

    console& out;
    progress_style style;
    std::string input;
    std::uint64_t total;
    clock::time_point begin = clock::now();
    clock::time_point next = begin;
};

} // namespace ov1

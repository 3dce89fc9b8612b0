// Work in pieces, and the function that runs them.
#pragma once

#include <cstddef>
#include <functional>

namespace ov1::media
{

/// Calls the work once for each piece 0..pieces-1, in any order and on any threads, and returns when all are done.
using piece_runner = std::function<void(std::size_t pieces, const std::function<void(std::size_t piece)>& work)>;

/// Runs one piece after the other on the caller's thread.
inline void run_in_turn(std::size_t pieces, const std::function<void(std::size_t piece)>& work)
{
    for (std::size_t piece = 0; piece < pieces; ++piece)
        work(piece);
}

} // namespace ov1::media

// Runs the pieces of a picture on several threads.
#pragma once

#include "media/samples/piece_runner.h"
#include "platform/rows.h"

namespace ov1
{

/// A runner on at most max_threads threads, 0 being one per processor. The caller's thread is one of them.
/// The call returns when all pieces are done. Pieces must not depend on each other.
inline media::piece_runner run_on_threads(unsigned int max_threads)
{
    return [max_threads](std::size_t pieces, const std::function<void(std::size_t)>& work)
    {
        for_each_row_piece(pieces, 1, max_threads,
                           [&](std::size_t first, std::size_t end)
                           {
                               for (std::size_t piece = first; piece < end; ++piece)
                                   work(piece);
                           });
    };
}

} // namespace ov1

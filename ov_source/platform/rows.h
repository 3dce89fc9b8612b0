// Rows of a picture on several threads.
#pragma once

#include <cstddef>

namespace ov1
{

namespace row_pieces
{

/// Processes the rows first..end-1. The context is the caller's function object.
using function = void (*)(const void* context, std::size_t first, std::size_t end);

/// for_each_row_piece with the function as a pointer.
/// rows_per_piece is at least 1.
void run(std::size_t rows, std::size_t rows_per_piece, unsigned max_threads, const void* context, function piece);

/// Pictures with fewer pixels are faster on one thread: waking others takes longer than the work.
inline constexpr std::size_t least_pixels_for_threads = 16 * 1024;
inline constexpr std::size_t usual_rows = 16; ///< per piece

} // namespace row_pieces

/// Calls piece(first, end) for the rows first..end-1 of each piece. first is a multiple of rows_per_piece; only the
/// last piece may be shorter. Uses at most max_threads threads, the caller's included; 0 means one per processor.
/// Pieces run in any order. Returns when all pieces are done. An exception from a piece ends the program.
template <class function>
void for_each_row_piece(std::size_t rows, std::size_t rows_per_piece, unsigned max_threads, const function& piece)
{
    // A pointer, called once per piece, keeps the thread pool out of this header.
    row_pieces::run(rows, rows_per_piece, max_threads, &piece,
                    [](const void* context, std::size_t first, std::size_t end)
                    { (*static_cast<const function*>(context))(first, end); });
}

/// for_each_row_piece over a picture, with pieces of a size that suits the pixel loops. A small picture is processed on
/// the caller's thread.
template <class function>
void for_each_picture_piece(std::size_t width, std::size_t rows, unsigned max_threads, const function& piece)
{
    const bool is_small = width * rows < row_pieces::least_pixels_for_threads;
    for_each_row_piece(rows, row_pieces::usual_rows, is_small ? 1 : max_threads, piece);
}

} // namespace ov1

// Where the pictures of a contact sheet stand.
#pragma once

#include <cstddef>

namespace ov1
{

/// Pixels. A cell is a picture with a line of text below it; margins run between cells and around all.
struct sheet_layout
{
    std::size_t columns;
    std::size_t rows;
    std::size_t picture_width;
    std::size_t picture_height;

    static constexpr std::size_t margin = 12;
    static constexpr std::size_t caption_height = 24;

    std::size_t width() const { return columns * (picture_width + margin) + margin; }
    std::size_t height() const { return rows * (picture_height + caption_height + margin) + margin; }
    std::size_t left_of(std::size_t cell) const { return margin + cell % columns * (picture_width + margin); }
    std::size_t top_of(std::size_t cell) const
    {
        return margin + cell / columns * (picture_height + caption_height + margin);
    }
};

/// A sheet of so many cells in so many columns (at least 1, at most cells), for a picture of a size. Its pictures keep
/// the ratio of that size, are not enlarged, and are small enough for the sheet to be about max_width wide.
sheet_layout lay_out_sheet(std::size_t cells, std::size_t columns, std::size_t source_width, std::size_t source_height,
                           std::size_t max_width);

} // namespace ov1

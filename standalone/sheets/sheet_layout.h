// The layout of a contact sheet.
#pragma once

#include <cstddef>

namespace ov1
{

/// All sizes are in pixels. A cell is a picture above a line of text; margins separate the cells and surround the
/// sheet.
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
    /// The top left pixel of a cell's picture. Cells are numbered in reading order from 0.
    std::size_t left_of(std::size_t cell) const { return margin + cell % columns * (picture_width + margin); }
    std::size_t top_of(std::size_t cell) const
    {
        return margin + cell / columns * (picture_height + caption_height + margin);
    }
};

/// Lays out `cells` cells in `columns` columns, which are limited to 1..cells. The pictures keep the aspect ratio of
/// the source and are not enlarged; the sheet is at most max_width wide. A picture is at most twice as high as a cell
/// is wide.
/// The source must not be empty, and max_width must leave a pixel for each column.
sheet_layout lay_out_sheet(std::size_t cells, std::size_t columns, std::size_t source_width, std::size_t source_height,
                           std::size_t max_width);

} // namespace ov1

// Short lines of text on a canvas, in the desktop's plain sans-serif font.
#pragma once

#include "standalone/sheets/canvas.h"

#include <memory>
#include <string>

namespace ov1
{

/// One thread at a time.
/// Owns its own copy of the font library: nothing is shared between painters.
class text_painter
{
public:
    /// pixel_size is the height of the font's em square.
    explicit text_painter(unsigned int pixel_size);
    ~text_painter();
    text_painter(const text_painter&) = delete;
    text_painter& operator=(const text_painter&) = delete;

    /// Whether a font was found. Without one, paint does nothing.
    bool has_face() const;

    /// The width of a whole text in pixels. Only where a font was found.
    std::size_t width_of(const std::string& text);

    /// Paints UTF-8 text, shortened with "..." to max_width pixels. x is the left edge, y the baseline.
    /// Bytes that are not UTF-8 appear as question marks; what lies outside the canvas is clipped.
    void paint(canvas& target, std::size_t x, std::size_t y, const std::string& text, std::size_t max_width,
               const argb_float& colour);

private:
    struct face;

    std::unique_ptr<face> loaded;
};

} // namespace ov1

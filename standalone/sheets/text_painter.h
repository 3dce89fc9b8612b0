// Short lines of text on a canvas, in the desktop's plain face.
#pragma once

#include "standalone/sheets/canvas.h"

#include <memory>
#include <string>

namespace ov1
{

/// Not for several threads at once.
class text_painter
{
public:
    /// A line's height in pixels, from the top of a capital to the foot of a "g", and a little more.
    explicit text_painter(unsigned int pixel_size);
    ~text_painter();
    text_painter(const text_painter&) = delete;
    text_painter& operator=(const text_painter&) = delete;

    /// Whether a face was found. Without one nothing is painted.
    bool has_face() const;

    /// Of a text that is not cut, in pixels; a face is needed.
    std::size_t width_of(const std::string& text);

    /// UTF-8, cut with "..." at a width in pixels. x is the left edge, y the base line.
    void paint(canvas& target, std::size_t x, std::size_t y, const std::string& text, std::size_t max_width,
               const argb_float& colour);

private:
    struct face;

    std::unique_ptr<face> loaded;
};

} // namespace ov1

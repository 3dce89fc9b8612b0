#include "effect/lut/cube_format.h"

#include "effect/lut/export_text.h"
#include "effect/lut/lut_argb_variable.h"

#include <fmt/format.h>
#include <iterator>
#include <stdexcept>

namespace ov1
{

namespace
{

/// In the order of the format, red fastest; the table has blue fastest.
template <std::size_t size>
void append_points(std::string& text, const lut_argb_variable& table)
{
    for (std::size_t b = 0; b < size; ++b)
        for (std::size_t g = 0; g < size; ++g)
            for (std::size_t r = 0; r < size; ++r)
            {
                const argb_float c = table.get_integer<size>(r, g, b);
                fmt::format_to(std::back_inserter(text), "{:.4f} {:.4f} {:.4f}\n", c.r, c.g, c.b);
            }
}

} // namespace

std::string cube_text(const lut_argb_variable& table, unsigned int size, const std::string& title,
                      const std::string& creator, const std::string& author)
{
    if (size != 17 && size != 32)
        throw std::logic_error("ERROR while saving CUBE LUT: Edge length must be 17 or 32");

    std::string text = generated_by_line(creator, author);
    text += "TITLE \"" + one_line(title) + "\"\n";
    text += "LUT_3D_SIZE " + std::to_string(size) + "\n";
    if (size == 17)
        append_points<17>(text, table);
    else
        append_points<32>(text, table);
    return text;
}

} // namespace ov1

#include "effect/lut/lut_argb.h"

#include "effect/lut/bin_lut.h"
#include "platform/iutils.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace ov1
{

template <std::size_t edge>
lut_argb<edge>::lut_argb(init_mode mode)
    : entries(entry_count)
{
    switch (mode)
    {
    case init_mode::identity:
        init();
        break;
    case init_mode::black:
        std::fill(entries.begin(), entries.end(), argb_float{1.0f, 0.0f, 0.0f, 0.0f});
        break;
    case init_mode::white:
        std::fill(entries.begin(), entries.end(), argb_float{1.0f, 1.0f, 1.0f, 1.0f});
        break;
    case init_mode::none:
        break;
    }
}

template <std::size_t edge>
void lut_argb<edge>::init()
{
    // By way of 16-bit units, whose rounding is part of the format: entries can differ from i / 16 in the last bit.
    // At edge 17 a step is 4095.9375, a short binary fraction, so adding it up 16 times is exact.
    constexpr float step = u16_max / static_cast<float>(edge - 1);
    const auto unit = [](float v) { return v > u16_max ? 1.0f : std::max(v, 0.0f) * unit_per_u16; };
    auto entry = entries.begin();
    float r = 0.0f;
    for (std::size_t i = 0; i < edge; ++i, r += step)
    {
        float g = 0.0f;
        for (std::size_t j = 0; j < edge; ++j, g += step)
        {
            float b = 0.0f;
            for (std::size_t k = 0; k < edge; ++k, b += step)
                *entry++ = {1.0f, unit(r), unit(g), unit(b)};
        }
    }
}

template <std::size_t edge>
const argb_float& lut_argb<edge>::get_direct(std::size_t r, std::size_t g, std::size_t b) const
{
    // Each index by itself: a wrong one could still give the index of another entry.
    if (r >= edge || g >= edge || b >= edge)
        throw std::out_of_range("grid point outside the table");
    return entries[index(r, g, b)];
}

template <std::size_t edge>
lut_argb<edge> lut_argb<edge>::from_std_array(const std::array<argb_float, entry_count>& values)
{
    lut_argb table(init_mode::none);
    std::copy(values.begin(), values.end(), table.entries.begin());
    return table;
}

template <std::size_t edge>
lut_argb<edge> lut_argb<edge>::from_vec(const std::vector<unsigned char>& bytes)
{
    auto read = read_bin_lut(bytes, edge);
    if (!read)
        return lut_argb();
    lut_argb table(init_mode::none);
    table.entries = std::move(*read);
    return table;
}

template <std::size_t edge>
lut_argb<edge> lut_argb<edge>::from_bin_resource(const std::string& name)
{
    // A missing or damaged look does nothing; it does not stop the program.
    std::vector<unsigned char> bytes;
    return iutils::get_instance().get_resource(name, bytes) ? from_vec(bytes) : lut_argb();
}

template class lut_argb<lut_edge>;

} // namespace ov1

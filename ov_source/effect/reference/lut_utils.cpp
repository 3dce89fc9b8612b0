#include "effect/reference/lut_utils.h"

#include "effect/lut/integer_hsl.h"
#include "shared/clamp.h"

#include <algorithm>

namespace ov1::lut_utils
{

namespace
{

/// The share of a chroma push that a colour gets, by its own chroma.
double push_share(double chroma_percent)
{
    if (chroma_percent <= 1.0)
        return 0.0;
    return chroma_percent <= 7.0 ? (chroma_percent - 1.0) / 6.0 : 1.0;
}

argb_float pushed(const argb_float& entry, double push_percent)
{
    hexcone colour = hexcone_of(entry);
    colour.chroma_percent = std::max(colour.chroma_percent + push_percent * push_share(colour.chroma_percent), 0.0);
    return entry_of(colour, entry.a);
}

} // namespace

template <std::size_t edge>
void add(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount, bool limit)
{
    // Compared with exact sixteenths, not with an identity table, whose entries differ in the last bit.
    constexpr float step = 1.0f / static_cast<float>(edge - 1);
    auto to = dst.get_entries().begin();
    auto from = src.get_entries().begin();
    for (std::size_t i = 0; i < edge; ++i)
        for (std::size_t j = 0; j < edge; ++j)
            for (std::size_t k = 0; k < edge; ++k, ++to, ++from)
            {
                to->a += (from->a - 1.0f) * amount;
                to->r += (from->r - static_cast<float>(i) * step) * amount;
                to->g += (from->g - static_cast<float>(j) * step) * amount;
                to->b += (from->b - static_cast<float>(k) * step) * amount;
                if (limit)
                    *to = {1.0f, clamped(to->r), clamped(to->g), clamped(to->b)};
            }
}

template <std::size_t edge>
void apply(lut_argb<edge>& dst, const lut_argb<edge>& src, float amount)
{
    if (amount == 0.0f)
        return;
    for (argb_float& entry : dst.get_entries())
    {
        const argb_float composed = src.lookup(entry);
        // A case of its own, because from + (to - from) is not always to.
        entry = amount == 1.0f ? composed : lerp(entry, composed, amount);
    }
}

template <std::size_t edge>
void add_chroma(lut_argb<edge>& table, int amount, const lut_mask<edge>& mask, mask_mode mode)
{
    auto& entries = table.get_entries();
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = pushed(entries[i], static_cast<double>(mask.weight(i, mode)) * amount);
}

template void add<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float, bool);
template void apply<lut_edge>(lut_argb<lut_edge>&, const lut_argb<lut_edge>&, float);
template void add_chroma<lut_edge>(lut_argb<lut_edge>&, int, const lut_mask<lut_edge>&, mask_mode);

} // namespace ov1::lut_utils

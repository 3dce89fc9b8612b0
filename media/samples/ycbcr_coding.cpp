#include "media/samples/ycbcr_coding.h"

#include "shared/luma_weights.h"

#include <algorithm>
#include <cmath>

namespace ov1::media
{

namespace
{

luma_weights luma_of(ycbcr_matrix matrix)
{
    switch (matrix)
    {
    case ycbcr_matrix::bt709:
        return bt709_luma;
    case ycbcr_matrix::bt2020:
        return bt2020_luma;
    case ycbcr_matrix::fcc:
        return fcc_luma;
    case ycbcr_matrix::smpte240m:
        return smpte240m_luma;
    case ycbcr_matrix::bt601:
        break;
    }
    return bt601_luma;
}

/// Limited ranges are defined for 8 bits and scale by powers of two; full ranges end at the largest code of all bits.
/// In units of 8 bits, limited codes below 1 and from 255 on are left to synchronisation.
code_range range_of(int bits, bool is_full, double limited_zero, double full_zero, double limited_codes)
{
    const double unit = std::ldexp(1.0, bits - 8);
    const double largest = (1 << bits) - 1;
    if (is_full)
        return {static_cast<float>(full_zero * unit), static_cast<float>(largest), 0.0f, static_cast<float>(largest)};
    return {static_cast<float>(limited_zero * unit), static_cast<float>(limited_codes * unit), static_cast<float>(unit),
            static_cast<float>(255 * unit - 1)};
}

} // namespace

ycbcr_weights weights_of(ycbcr_matrix matrix)
{
    const luma_weights luma = luma_of(matrix);
    const auto f = [](double v) { return static_cast<float>(v); };
    return {.kr = f(luma.red),
            .kg = f(luma.green()),
            .kb = f(luma.blue),
            .cb_scale = f(1 / luma.cb_span()),
            .cr_scale = f(1 / luma.cr_span()),
            .red_cr = f(luma.cr_span()),
            .green_cb = f(luma.cb_span() * luma.blue / luma.green()),
            .green_cr = f(luma.cr_span() * luma.red / luma.green()),
            .blue_cb = f(luma.cb_span())};
}

code_range luma_range(int bits, bool is_full) { return range_of(bits, is_full, 16, 0, 219); }
code_range chroma_range(int bits, bool is_full) { return range_of(bits, is_full, 128, 128, 224); }

chroma_source chroma_at(const chroma_axis& axis, std::size_t pixel, std::size_t samples)
{
    const std::size_t last = samples - 1;
    if (!axis.site)
        return {std::min(pixel >> axis.log2, last), false};
    // The pixel before the first sample has only that one.
    if (pixel < *axis.site)
        return {0, false};
    // From here on every second pixel lies on a sample; the others lie between two.
    const std::size_t from_site = pixel - *axis.site;
    const std::size_t sample = from_site / 2;
    return {std::min(sample, last), from_site % 2 != 0 && sample < last};
}

} // namespace ov1::media

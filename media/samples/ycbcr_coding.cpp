#include "media/samples/ycbcr_coding.h"

#include <algorithm>

namespace ov1::media
{

namespace
{

struct luma_weights
{
    double red;
    double blue;
};

luma_weights luma_of(ycbcr_matrix matrix)
{
    switch (matrix)
    {
    case ycbcr_matrix::bt709:
        return {0.2126, 0.0722};
    case ycbcr_matrix::bt2020:
        return {0.2627, 0.0593};
    case ycbcr_matrix::fcc:
        return {0.30, 0.11};
    case ycbcr_matrix::smpte240m:
        return {0.212, 0.087};
    case ycbcr_matrix::bt601:
        break;
    }
    return {0.299, 0.114};
}

code_range range_of(int bits, bool is_full, double limited_zero, double full_zero, double limited_codes)
{
    const double unit = 1 << (bits - 8);
    const double largest = (1 << bits) - 1;
    if (is_full)
        return {static_cast<float>(full_zero * unit), static_cast<float>(largest), 0.0f, static_cast<float>(largest)};
    return {static_cast<float>(limited_zero * unit), static_cast<float>(limited_codes * unit), static_cast<float>(unit),
            static_cast<float>(255 * unit - 1)};
}

} // namespace

ycbcr_weights weights_of(ycbcr_matrix matrix)
{
    const auto [kr, kb] = luma_of(matrix);
    const double kg = 1 - kr - kb;
    const auto f = [](double v) { return static_cast<float>(v); };
    return {f(kr),
            f(kg),
            f(kb),
            f(0.5 / (1 - kb)),
            f(0.5 / (1 - kr)),
            f(2 * (1 - kr)),
            f(2 * (1 - kb) * kb / kg),
            f(2 * (1 - kr) * kr / kg),
            f(2 * (1 - kb))};
}

code_range luma_range(int bits, bool is_full) { return range_of(bits, is_full, 16, 0, 219); }
code_range chroma_range(int bits, bool is_full) { return range_of(bits, is_full, 128, 128, 224); }

chroma_source chroma_at(const chroma_axis& axis, std::size_t pixel, std::size_t samples)
{
    const std::size_t last = samples - 1;
    if (!axis.site)
        return {std::min(pixel >> axis.log2, last), false};
    if (pixel < *axis.site)
        return {0, false};
    const std::size_t from_site = pixel - *axis.site;
    const std::size_t sample = from_site / 2;
    return {std::min(sample, last), from_site % 2 != 0 && sample < last};
}

} // namespace ov1::media

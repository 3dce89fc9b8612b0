#include "media/stills/jpeg_tables.h"

#include <algorithm>

namespace ov1::media
{

namespace
{

constexpr jpeg_table luma_example{
    16, 11, 10, 16, 24,  40,  51,  61,  //
    12, 12, 14, 19, 26,  58,  60,  55,  //
    14, 13, 16, 24, 40,  57,  69,  56,  //
    14, 17, 22, 29, 51,  87,  80,  62,  //
    18, 22, 37, 56, 68,  109, 103, 77,  //
    24, 35, 55, 64, 81,  104, 113, 92,  //
    49, 64, 78, 87, 103, 121, 120, 101, //
    72, 92, 95, 98, 112, 100, 103, 99,  //
};

constexpr jpeg_table chroma_example{
    17, 18, 24, 47, 99, 99, 99, 99, //
    18, 21, 26, 66, 99, 99, 99, 99, //
    24, 26, 56, 99, 99, 99, 99, 99, //
    47, 66, 99, 99, 99, 99, 99, 99, //
    99, 99, 99, 99, 99, 99, 99, 99, //
    99, 99, 99, 99, 99, 99, 99, 99, //
    99, 99, 99, 99, 99, 99, 99, 99, //
    99, 99, 99, 99, 99, 99, 99, 99, //
};

jpeg_table scaled(jpeg_table table, int percent)
{
    for (std::uint16_t& step : table)
        step = static_cast<std::uint16_t>(std::clamp((step * percent + 50) / 100, 1, 255));
    return table;
}

} // namespace

jpeg_tables jpeg_tables_of(int quality)
{
    const int percent = quality < 50 ? 5000 / quality : 200 - 2 * quality;
    return {scaled(luma_example, percent), scaled(chroma_example, percent)};
}

} // namespace ov1::media

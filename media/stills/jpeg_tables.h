// Quantization tables of JPEG by a quality of 1..100.
#pragma once

#include <array>
#include <cstdint>

namespace ov1::media
{

/// 64 steps, 1..255, row by row.
using jpeg_table = std::array<std::uint16_t, 64>;

struct jpeg_tables
{
    jpeg_table luma;
    jpeg_table chroma;
};

/// The example tables of the standard, scaled as usual: 50 keeps them, 100 makes every step 1. The quality is 1..100.
/// Source of the tables: ITU-T T.81, tables K.1 and K.2; of the scale: Independent JPEG Group, libjpeg.
jpeg_tables jpeg_tables_of(int quality);

} // namespace ov1::media

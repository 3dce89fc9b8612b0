// Reads one component of a row in any layout.
#pragma once

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace ov1::media
{

/// Reads a number from any address.
template <typename T>
T load(const std::uint8_t* from)
{
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

/// With the bytes in opposite order.
inline std::uint16_t swapped(std::uint16_t v) { return static_cast<std::uint16_t>(v << 8 | v >> 8); }
inline std::uint32_t swapped(std::uint32_t v) { return __builtin_bswap32(v); }

/// How one component of a pixel format lies in memory. Samples of a row are `step` bytes apart; a sample is read from
/// `bytes` bytes, put into this machine's order, shifted down and masked.
struct sample_layout
{
    int plane;     ///< index into AVFrame::data
    int step;      ///< bytes from one pixel to the next
    int offset;    ///< bytes before the first sample
    int shift;     ///< bits below the sample
    int depth;     ///< bits
    int bytes;     ///< that the sample lies in: 1, 2 or 4
    bool swap;     ///< these bytes are not in this machine's order
    bool is_float; ///< IEEE 754 of 32 bits; `shift` is 0

    /// All bits of a code, once it is shifted down.
    std::uint32_t mask() const { return static_cast<std::uint32_t>((std::uint64_t{1} << depth) - 1); }
};

/// The layout of a component by its index in the descriptor. Not for formats whose samples cross bytes (bitstreams).
inline sample_layout layout_of(const AVPixFmtDescriptor& format, int component)
{
    const AVComponentDescriptor& c = format.comp[component];
    const bool big_endian = (format.flags & AV_PIX_FMT_FLAG_BE) != 0;
    const int bits = c.shift + c.depth;
    sample_layout layout{c.plane, c.step, c.offset, c.shift, c.depth, bits <= 8 ? 1 : bits <= 16 ? 2 : 4, false, false};
    layout.swap = big_endian != (std::endian::native == std::endian::big);
    layout.is_float = (format.flags & AV_PIX_FMT_FLAG_FLOAT) != 0;
    if (big_endian && layout.bytes == 1)
        ++layout.offset; // a few bits of a 16-bit word: the descriptor counts from the word's high byte
    return layout;
}

/// Calls take(i, code) for count samples, i from 0 on; code is the integer as stored, or the bits of a float. Reads
/// nothing but the samples' bytes.
template <typename taker>
void each_code(const sample_layout& layout, const std::uint8_t* from, std::size_t count, taker&& take)
{
    const std::uint32_t mask = layout.mask();
    const int shift = layout.shift;
    // The width and the byte order are decided once for the row, outside of the loop.
    const auto run = [&](auto&& code_at)
    {
        for (std::size_t i = 0; i < count; ++i)
            take(i, code_at(from + i * static_cast<std::size_t>(layout.step)) >> shift & mask);
    };
    if (layout.bytes == 1)
        run([](const std::uint8_t* p) { return std::uint32_t{*p}; });
    else if (layout.bytes == 2 && layout.swap)
        run([](const std::uint8_t* p) { return std::uint32_t{swapped(load<std::uint16_t>(p))}; });
    else if (layout.bytes == 2)
        run([](const std::uint8_t* p) { return std::uint32_t{load<std::uint16_t>(p)}; });
    else if (layout.swap)
        run([](const std::uint8_t* p) { return swapped(load<std::uint32_t>(p)); });
    else
        run([](const std::uint8_t* p) { return load<std::uint32_t>(p); });
}

} // namespace ov1::media

#include "effect/lut/bin_lut.h"

#include <bit>
#include <cassert>
#include <cstdint>

namespace ov1
{

namespace
{

/// Byte by byte, so that the byte order of the machine does not matter.
float read_f32(const unsigned char* p)
{
    return std::bit_cast<float>(std::uint32_t{p[0]} | std::uint32_t{p[1]} << 8 | std::uint32_t{p[2]} << 16 |
                                std::uint32_t{p[3]} << 24);
}

void append_f32(std::vector<unsigned char>& bytes, float v)
{
    const auto bits = std::bit_cast<std::uint32_t>(v);
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<unsigned char>(bits >> shift));
}

} // namespace

result<std::vector<argb_float>> read_bin_lut(std::span<const unsigned char> bytes, std::size_t edge)
{
    // The size first: it makes sure that there are two bytes to read the edge length from.
    if (bytes.size() != bin_lut_size(edge))
        return failure{failure_kind::unreadable,
                       {},
                       "has " + std::to_string(bytes.size()) + " bytes instead of " +
                           std::to_string(bin_lut_size(edge))};
    if (const std::size_t stored = bytes[0] + 256u * bytes[1]; stored != edge)
        return failure{failure_kind::unreadable,
                       {},
                       "has " + std::to_string(stored) + " points per axis instead of " + std::to_string(edge)};
    std::vector<argb_float> entries(edge * edge * edge);
    const unsigned char* p = bytes.data() + 2;
    for (argb_float& entry : entries)
    {
        entry = {1.0f, read_f32(p), read_f32(p + 4), read_f32(p + 8)};
        p += 12;
    }
    return entries;
}

std::vector<unsigned char> write_bin_lut(std::span<const argb_float> entries, std::size_t edge)
{
    assert(entries.size() == edge * edge * edge && edge < 65536);
    std::vector<unsigned char> bytes;
    bytes.reserve(bin_lut_size(edge));
    bytes.push_back(static_cast<unsigned char>(edge));
    bytes.push_back(static_cast<unsigned char>(edge >> 8));
    for (const argb_float& entry : entries)
    {
        append_f32(bytes, entry.r);
        append_f32(bytes, entry.g);
        append_f32(bytes, entry.b);
    }
    return bytes;
}

} // namespace ov1

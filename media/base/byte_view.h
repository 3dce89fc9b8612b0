// Numbers in bytes that came from outside.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace ov1::media
{

/// A view of bytes with a byte order; owns nothing. Bytes beyond the end read as zero and match no text, so damaged
/// files cannot lead outside.
class byte_view
{
public:
    /// The bytes outlive the view.
    explicit byte_view(std::span<const std::uint8_t> bytes, bool big_endian = true)
        : bytes(bytes)
        , big_endian(big_endian)
    {
    }

    std::size_t size() const { return bytes.size(); }
    /// Unsigned numbers of 8, 16 and 32 bits at an offset in bytes, in the view's byte order.
    std::uint32_t u8(std::size_t at) const { return at < bytes.size() ? bytes[at] : 0u; }
    std::uint32_t u16(std::size_t at) const { return big_endian ? u8(at) << 8 | u8(at + 1) : u8(at) | u8(at + 1) << 8; }
    std::uint32_t u32(std::size_t at) const
    {
        return big_endian ? u16(at) << 16 | u16(at + 2) : u16(at) | u16(at + 2) << 16;
    }

    /// Whether these bytes stand at a place; zeros within the text count.
    bool has(std::size_t at, std::string_view text) const
    {
        return at <= size() && text.size() <= size() - at &&
               std::memcmp(bytes.data() + at, text.data(), text.size()) == 0;
    }

    /// At most count bytes from a place on; fewer at the end.
    std::span<const std::uint8_t> part(std::size_t at, std::size_t count = SIZE_MAX) const
    {
        at = std::min(at, size());
        return bytes.subspan(at, std::min(count, size() - at));
    }

private:
    std::span<const std::uint8_t> bytes;
    bool big_endian;
};

} // namespace ov1::media

#include "media/base/byte_view.h"
#include "media/stills/picture_facts.h"

#include <array>

namespace ov1::media
{

namespace
{

constexpr std::size_t orientation_at = 768;
constexpr std::size_t transfer_at = 801;

// The direction of a line's pixels and of the lines, numbered 0..7 by the format, as an orientation of TIFF.
constexpr std::array<unsigned, 8> tiff_orientation{1, 2, 4, 3, 5, 6, 8, 7};

} // namespace

picture_facts dpx_facts(std::span<const std::uint8_t> file)
{
    const byte_view magic(file);
    const byte_view bytes(file, magic.has(0, "SDPX"));
    picture_facts facts;
    const std::uint32_t direction = bytes.u16(orientation_at);
    facts.orientation = direction < tiff_orientation.size() ? tiff_orientation[direction] : 1;
    // Not a transfer: "linear" stands in files of every kind, many writers put nothing else.
    facts.dpx_transfer = static_cast<std::uint16_t>(magic.u16(transfer_at));
    return facts;
}

} // namespace ov1::media

#include "media/base/byte_view.h"
#include "media/stills/picture_facts.h"

namespace ov1::media
{

namespace
{

constexpr std::uint32_t deep_flag = 0x800;
constexpr std::uint32_t half_type = 1;
constexpr std::size_t longest_name = 255;

/// A name that ends with a zero; empty at the end of the bytes and where it is too long.
std::string_view name_at(const byte_view& bytes, std::size_t at)
{
    const auto rest = bytes.part(at, longest_name + 1);
    for (std::size_t length = 0; length < rest.size(); ++length)
        if (rest[length] == 0)
            return {reinterpret_cast<const char*>(rest.data()), length};
    return {};
}

/// A channel list: name, zero, type, three bytes and one, two samplings of four bytes each; a zero ends it.
void read_channels(const byte_view& list, picture_facts& facts)
{
    facts.half_float = true;
    for (std::size_t at = 0; at < list.size();)
    {
        const std::string_view name = name_at(list, at);
        if (name.empty())
            break;
        at += name.size() + 1;
        if (name == "R" || name == "G" || name == "B" || name == "Y")
            facts.half_float = facts.half_float && list.u32(at) == half_type;
        if (name == "RY" || name == "BY")
            facts.refusal = "luminance and chroma channels (RY, BY)";
        at += 16;
    }
}

} // namespace

/// Walks the attributes of the header: name, zero, type, zero, size in four bytes, value; a zero ends them.
picture_facts exr_facts(std::span<const std::uint8_t> file)
{
    picture_facts facts;
    facts.premultiplied = true;
    facts.transfer = transfer::linear;
    const byte_view bytes(file, false);
    if ((bytes.u32(4) & deep_flag) != 0)
        facts.refusal = "deep samples";

    byte_view data_window({}), display_window({});
    for (std::size_t at = 8; at < bytes.size();)
    {
        const std::string_view name = name_at(bytes, at);
        if (name.empty())
            break;
        at += name.size() + 1;
        at += name_at(bytes, at).size() + 1;
        const byte_view value(bytes.part(at + 4, bytes.u32(at)), false);
        if (name == "channels")
            read_channels(value, facts);
        else if (name == "dataWindow")
            data_window = value;
        else if (name == "displayWindow")
            display_window = value;
        at += 4 + std::size_t{bytes.u32(at)};
    }
    if (display_window.u32(0) != 0 || display_window.u32(4) != 0)
        facts.refusal = "its display window does not begin at 0, 0"; // libav 5.1 would leave it black
    bool same = true;
    for (const std::size_t corner : {0, 4, 8, 12})
        same = same && data_window.u32(corner) == display_window.u32(corner);
    if (!same)
        facts.warnings.emplace_back("the data window differs from the display window: only the latter is kept");
    return facts;
}

} // namespace ov1::media

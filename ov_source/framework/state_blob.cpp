#include "framework/state_blob.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ov1
{

namespace
{

constexpr std::uint32_t magic = 0x63763173; // "s1vc"
// A header alone is not a state, even if its count is 0.
constexpr std::size_t smallest_state = state_header_size + 1;

// Offsets in a record; state_blob.h has the whole format.
constexpr std::size_t value_at = 4;
constexpr std::size_t default_at = value_at + param_cell::size;
constexpr std::size_t min_at = default_at + param_cell::size;
constexpr std::size_t max_at = min_at + 4;
constexpr std::size_t uid_at = max_at + 4;
static_assert(uid_at + 4 == state_record_size);

/// Little-endian on every processor.
void put_u32(std::uint8_t* at, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i)
        at[i] = static_cast<std::uint8_t>(v >> (8 * i));
}

std::uint32_t get_u32(const std::uint8_t* at)
{
    return at[0] | std::uint32_t{at[1]} << 8 | std::uint32_t{at[2]} << 16 | std::uint32_t{at[3]} << 24;
}

void put_record(std::uint8_t* at, const state_record& record)
{
    put_u32(at, static_cast<std::uint32_t>(record.value.type));
    std::ranges::copy(record.value.value.bytes, at + value_at);
    std::ranges::copy(record.value.default_value.bytes, at + default_at);
    put_u32(at + min_at, record.value.min.bits);
    put_u32(at + max_at, record.value.max.bits);
    put_u32(at + uid_at, record.id);
}

/// The bytes of a cell that a value of this kind uses.
std::size_t used_bytes(param_type type)
{
    switch (type)
    {
    case param_type::continuous:
    case param_type::integral:
        return 4;
    case param_type::boolean:
        return 1;
    default:
        return param_cell::size;
    }
}

/// Unused bytes become zero and booleans 0 or 1, so that equal values have equal cells. Unknown kinds keep all bytes.
param_cell get_cell(const std::uint8_t* at, param_type type)
{
    param_cell cell;
    std::copy_n(at, used_bytes(type), cell.bytes.begin());
    if (type == param_type::boolean)
        cell = param_cell::of(cell.as_boolean());
    return cell;
}

state_record get_record(const std::uint8_t* at)
{
    const auto type = static_cast<param_type>(get_u32(at));
    return {{type,
             get_cell(at + value_at, type),
             get_cell(at + default_at, type),
             {get_u32(at + min_at)},
             {get_u32(at + max_at)}},
            get_u32(at + uid_at)};
}

/// Whether the bytes begin with the magic and are more than a header.
bool has_header(std::span<const std::uint8_t> bytes)
{
    return bytes.size() >= smallest_state && get_u32(bytes.data()) == magic;
}

/// Needs a complete header.
std::int32_t announced_count(std::span<const std::uint8_t> bytes)
{
    return static_cast<std::int32_t>(get_u32(bytes.data() + 4));
}

} // namespace

std::vector<std::uint8_t> write_state(std::span<const state_record> records)
{
    std::vector<std::uint8_t> bytes(state_header_size + state_record_size * records.size());
    put_u32(bytes.data(), magic);
    put_u32(bytes.data() + 4, static_cast<std::uint32_t>(records.size()));
    for (std::size_t i = 0; i < records.size(); ++i)
        put_record(bytes.data() + state_header_size + state_record_size * i, records[i]);
    return bytes;
}

bool read_state(std::span<const std::uint8_t> bytes, std::vector<state_record>& records)
{
    if (!has_header(bytes))
        return false;
    const std::int32_t count = announced_count(bytes);
    std::span<const std::uint8_t> rest = bytes.subspan(state_header_size);
    // A negative count ends the loop at once; a count that is too large ends at the last complete record.
    for (std::int32_t i = 0; i < count && rest.size() >= state_record_size; ++i)
    {
        records.push_back(get_record(rest.data()));
        rest = rest.subspan(state_record_size);
    }
    return true;
}

result<> check_state_blob(std::span<const std::uint8_t> bytes)
{
    // No subject: the caller knows where the bytes came from.
    const auto invalid = [](std::string reason) { return failure{failure_kind::invalid_grade, {}, std::move(reason)}; };

    if (bytes.size() < smallest_state)
        return invalid("the state is cut short: " + std::to_string(bytes.size()) + " bytes");
    if (!has_header(bytes))
        return invalid("not a state: it does not begin with \"s1vc\"");
    const std::int32_t count = announced_count(bytes);
    if (count < 0)
        return invalid("the state is damaged: it announces " + std::to_string(count) + " parameters");
    // The announced count is compared with what is there before anything is allocated.
    const std::size_t found = (bytes.size() - state_header_size) / state_record_size;
    if (static_cast<std::size_t>(count) > found)
        return invalid("the state is cut short: it announces " + std::to_string(count) + " parameters and holds " +
                       std::to_string(found));
    return {};
}

} // namespace ov1

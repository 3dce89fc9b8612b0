// The identity of a parameter: a hash of its name.
#pragma once

#include <cstdint>
#include <string_view>

namespace ov1
{

/// Identifies a parameter in documents, presets and editor controls. Renaming a parameter changes its uid.
using uid = std::uint32_t;

/// 32-bit FNV-1a over the bytes of a text; the empty text gives 0x811C9DC5.
/// Source: Fowler, Noll, Vo, http://www.isthe.com/chongo/tech/comp/fnv/
constexpr uid make_uid(std::string_view name)
{
    uid hash = 0x811C9DC5u;
    for (const char c : name)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x01000193u;
    return hash;
}

/// Stands for "no parameter".
inline constexpr uid invalid_id = make_uid("invalid");

} // namespace ov1

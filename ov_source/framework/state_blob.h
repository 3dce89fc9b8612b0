// The state of all parameters as bytes. Little-endian, without padding:
//
//   offset      size  field
//   0              4  magic, the bytes "s1vc"
//   4              4  record count, signed
//   8 + 48 i       4  record i: kind of the value (param_type)
//                 16  value, by its kind; unused bytes zero
//                 16  default, likewise
//                  4  lower bound, float or signed integer
//                  4  upper bound
//                  4  uid of the parameter
//
// Hosts keep it in their documents and presets embed it.
#pragma once

#include "shared/param_value.h"
#include "shared/result.h"
#include "shared/uid.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ov1
{

inline constexpr std::size_t state_header_size = 8;
inline constexpr std::size_t state_record_size = 48;

struct state_record
{
    param_value value;
    uid id = invalid_id;
};

/// The records in the given order, under a header.
std::vector<std::uint8_t> write_state(std::span<const state_record> records);

/// Appends to records what the bytes hold, and reads nothing outside them: the first record that does not fit ends the
/// list, as does the count; a negative count means none; bytes after the last record are ignored. Returns false, with
/// records as they were, for fewer than 9 bytes or another magic.
/// Cells of the four kinds come with their unused bytes zeroed and booleans as 0 or 1; a record of another kind keeps
/// its bytes as they are.
[[nodiscard]] bool read_state(std::span<const std::uint8_t> bytes, std::vector<state_record>& records);

/// Checks bytes from outside before set_state: fails (invalid_grade) when they are no state, or hold fewer records than
/// they announce. More bytes may follow.
result<> check_state_blob(std::span<const std::uint8_t> bytes);

} // namespace ov1

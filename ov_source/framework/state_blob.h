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

/// Both in bytes.
inline constexpr std::size_t state_header_size = 8;
inline constexpr std::size_t state_record_size = 48;

/// A value and the parameter that it belongs to.
struct state_record
{
    param_value value;
    uid id = invalid_id;
};

/// The records in the given order, under a header.
std::vector<std::uint8_t> write_state(std::span<const state_record> records);

/// Appends the records in the bytes, as many as the count says or as are complete. Never reads outside the bytes. A
/// negative count means none; bytes after the last record are ignored. Returns false, with records unchanged, for fewer
/// than 9 bytes or another magic.
/// Values of the four kinds get their unused bytes zeroed and booleans 0 or 1; a record of another kind keeps its
/// bytes.
[[nodiscard]] bool read_state(std::span<const std::uint8_t> bytes, std::vector<state_record>& records);

/// Checks bytes from outside before set_state. Fails (invalid_grade) if they are not a state or hold fewer records than
/// the count says. More bytes may follow.
result<> check_state_blob(std::span<const std::uint8_t> bytes);

} // namespace ov1

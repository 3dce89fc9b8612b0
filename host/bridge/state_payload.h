// The value of the host's "State" parameter: the effect's state, followed by 16 bytes that never repeat.
//
//   offset  size  field
//   0          N  the state, as icomponent_v1::get_state gives it
//   N         16  a random UUID in its binary form
//
// With the UUID every pushed value differs, so the host records an undo step even if the state is the same. There is no
// header: the state contains its own length. icomponent_v1::set_state takes the whole payload and ignores the UUID;
// check a payload from a document with check_state_blob first. Older documents may lack the UUID.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace ov1
{

using uuid_bytes = std::array<std::uint8_t, 16>;

/// A random UUID of version 4 (RFC 9562, section 5.4), from the system's source of randomness. Any thread.
uuid_bytes make_random_uuid();

/// Appends a new UUID to a state.
std::vector<std::uint8_t> make_state_payload(std::vector<std::uint8_t> state);

} // namespace ov1

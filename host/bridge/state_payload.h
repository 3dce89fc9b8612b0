// The value of the host's "State" parameter: the state of the effect with 16 bytes behind it that never repeat.
//
//   offset  size  field
//   0          N  the state, as icomponent_v1::get_state gives it
//   N         16  a random UUID in its binary form
//
// The UUID lets the host see a change where the state has none. There is no header: the state knows its own length.
#pragma once

#include "shared/result.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace ov1
{

using uuid_bytes = std::array<std::uint8_t, 16>;

/// A random UUID of version 4 (RFC 9562, section 5.4), from the system's source of randomness. Any thread.
uuid_bytes make_random_uuid();

/// The payload of a state.
std::vector<std::uint8_t> make_state_payload(std::vector<std::uint8_t> state);

/// Whether a payload from a document can be handed to icomponent_v1::set_state whole, UUID included: it holds as many
/// records as it announces. An older document's may end without a UUID. Failures are those of check_state_blob.
result<> check_state_payload(std::span<const std::uint8_t> payload);

} // namespace ov1

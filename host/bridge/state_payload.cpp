#include "host/bridge/state_payload.h"

#include <random>

namespace ov1
{

uuid_bytes make_random_uuid()
{
    std::random_device random;
    uuid_bytes uuid;
    for (std::size_t i = 0; i < uuid.size(); i += 4)
    {
        // 32 bits a call, so four calls fill the UUID.
        const std::uint32_t word = random();
        for (std::size_t k = 0; k < 4; ++k)
            uuid[i + k] = static_cast<std::uint8_t>(word >> (8 * k));
    }
    uuid[6] = static_cast<std::uint8_t>((uuid[6] & 0x0f) | 0x40); // version 4
    uuid[8] = static_cast<std::uint8_t>((uuid[8] & 0x3f) | 0x80); // the variant of the RFC
    return uuid;
}

std::vector<std::uint8_t> make_state_payload(std::vector<std::uint8_t> state)
{
    const uuid_bytes uuid = make_random_uuid();
    // At the end, where readers of the state do not look: they stop at the state's own length.
    state.insert(state.end(), uuid.begin(), uuid.end());
    return state;
}

} // namespace ov1

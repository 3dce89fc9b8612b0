// Any bytes as a component's state: nothing outside them is read, and what is restored is restored again to the bit.
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "framework/state_blob.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ov1;
    static const auto component = []
    {
        auto made = create_ccomponent();
        made->initialize(std::make_shared<chost_v1>(made));
        return made;
    }();
    // An exact copy on the heap, so that a read past the end is seen.
    const auto exact = std::make_unique<std::uint8_t[]>(size);
    std::copy(data, data + size, exact.get());
    std::vector<state_record> records;
    (void)read_state({exact.get(), size}, records);
    (void)check_state_blob({exact.get(), size});

    component->reset_to_default();
    std::vector<std::uint8_t> blob(data, data + size);
    (void)component->set_state(blob, true);
    // Whatever the bytes did, the state that results must survive a restore.
    auto restored = component->get_state();
    component->reset_to_default();
    if (!component->set_state(restored, false) || component->get_state() != restored)
        std::abort();
    return 0;
}

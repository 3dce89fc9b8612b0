#include "editor/discard_keys.h"

#include "vstgui/lib/events.h"

#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr std::chrono::milliseconds longest_pause_between_presses(800);

} // namespace

discard_keys::discard_keys(CFrame& frame, std::function<void()> on_discard)
    : frame(frame)
    , on_discard(std::move(on_discard))
{
    frame.registerKeyboardHook(this);
}

discard_keys::~discard_keys() noexcept { frame.unregisterKeyboardHook(this); }

void discard_keys::onKeyboardEvent(KeyboardEvent& event, CFrame* of_frame)
{
    // A key that is held repeats: only a new press counts as the second one.
    if (event.type != EventType::KeyDown || event.virt != VirtualKey::Escape || event.isRepeat ||
        of_frame->getModalView())
        return;
    const auto now = clock::now();
    const bool is_second = now - last_escape < longest_pause_between_presses;
    // A third press begins a new pair. The first one is not consumed: other parts of the editor use Escape too.
    last_escape = is_second ? clock::time_point{} : now;
    if (is_second)
    {
        event.consumed = true;
        on_discard();
    }
}

} // namespace ov1
